#include "runtime/checked_arithmetic.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "runtime/run_time_error.h"

namespace tavimor {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

template <class Step>
void expectError(ErrorNumber number, Step step) {
  try {
    step();
    ADD_FAILURE() << "no error";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number(), number);
  }
}

TEST(CheckedArithmetic, GivesTheValueWhereThereIsOne) {
  EXPECT_EQ(quotient(1.0, 3.0), 1.0 / 3.0);
  EXPECT_EQ(squareRoot(2.0), std::sqrt(2.0));
  EXPECT_EQ(logarithm(2.0), std::log(2.0));
  EXPECT_EQ(exponential(2.0), std::exp(2.0));
  EXPECT_EQ(inRange(-1.5), -1.5);
}

TEST(CheckedArithmetic, ReportsTheStepThatHasNone) {
  expectError(ErrorNumber::DivisionByZero, [] { quotient(1.0, 0.0); });
  expectError(ErrorNumber::DivisionByZero, [] { quotient(0.0, -0.0); });
  expectError(ErrorNumber::InvalidCall, [] { squareRoot(-1e-300); });
  expectError(ErrorNumber::InvalidCall, [] { logarithm(0.0); });
  expectError(ErrorNumber::InvalidCall, [] { logarithm(-1.0); });
  expectError(ErrorNumber::Overflow, [] { exponential(710.0); });
  expectError(ErrorNumber::Overflow, [] { inRange(kInfinity); });
  expectError(ErrorNumber::Overflow, [] { inRange(-kInfinity); });
  expectError(ErrorNumber::Overflow, [] { inRange(kNan); });
}

TEST(CheckedArithmetic, TheRootOfMinusZeroIsMinusZero) { EXPECT_TRUE(std::signbit(squareRoot(-0.0))); }

TEST(CheckedArithmetic, AnExponentialTooSmallIsZero) { EXPECT_EQ(exponential(-1000.0), 0.0); }

TEST(CheckedArithmetic, LetsANanPassToItsCaller) {
  EXPECT_TRUE(std::isnan(quotient(kNan, 1.0)));
  EXPECT_TRUE(std::isnan(squareRoot(kNan)));
  EXPECT_TRUE(std::isnan(logarithm(kNan)));
  EXPECT_TRUE(std::isnan(exponential(kNan)));
}

}  // namespace
}  // namespace tavimor
