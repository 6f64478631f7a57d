#include "script/Class1.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "runtime/run_time_error.h"

namespace tavimor {
namespace {

class Class1Test : public ::testing::Test {
 protected:
  Class1Test() { object.halfpi = 2.0 * std::atan(1.0); }

  void expectFailure(double result, ErrorNumber number) {
    EXPECT_EQ(result, 0.0);
    EXPECT_EQ(object.ierr, static_cast<Long>(number));
    EXPECT_EQ(windowIerr, static_cast<Long>(number));
    object.ierr = windowIerr = 0;
  }

  Long windowIerr = 0;
  Class1 object{windowIerr};
};

TEST(NewClass1, HasFieldsOfZero) {
  Long windowIerr = 0;
  const Class1 object(windowIerr);
  EXPECT_EQ(object.pi, 0.0);
  EXPECT_EQ(object.halfpi, 0.0);
  EXPECT_EQ(object.e, 0.0);
  EXPECT_EQ(object.ierr, 0);
}

TEST(NewClass1, UsesAHalfpiOfZeroWithoutComplaint) {
  Long windowIerr = 0;
  Class1 object(windowIerr);
  EXPECT_EQ(object.Asin(1.0), 0.0);
  EXPECT_EQ(object.Acos(-1.0), 0.0);
  EXPECT_EQ(object.Acos(0.5), -std::atan(0.5 / std::sqrt(0.75)));
  EXPECT_EQ(object.ierr, 0);
}

TEST_F(Class1Test, AsinAndAcosHaveTheirEndValuesFromHalfpi) {
  EXPECT_EQ(object.Asin(1.0), object.halfpi);
  EXPECT_EQ(object.Asin(-1.0), -object.halfpi);
  EXPECT_EQ(object.Acos(1.0), 0.0);
  EXPECT_EQ(object.Acos(-1.0), 2.0 * object.halfpi);
  EXPECT_EQ(object.ierr, 0);
}

TEST_F(Class1Test, EveryFunctionAgreesWithTheLibrary) {
  for (int n = -31; n < 32; ++n) {
    const double x = n / 32.0;
    EXPECT_NEAR(object.Asin(x), std::asin(x), 1e-15) << x;
    EXPECT_NEAR(object.Acos(x), std::acos(x), 1e-15) << x;
    EXPECT_NEAR(object.Sinh(x), std::sinh(x), 1e-15) << x;
    EXPECT_NEAR(object.Cosh(x), std::cosh(x), 1e-15) << x;
    EXPECT_NEAR(object.Tanh(x), std::tanh(x), 1e-15) << x;
    EXPECT_NEAR(object.Asinh(x), std::asinh(x), 1e-15) << x;
    EXPECT_NEAR(object.Acosh(x + 2.0), std::acosh(x + 2.0), 1e-14) << x;
    EXPECT_NEAR(object.Atanh(x), std::atanh(x), 1e-14) << x;
  }
  EXPECT_EQ(object.ierr, 0);
}

TEST_F(Class1Test, EveryFunctionHasTheBitsOfItsForm) {
  for (const double x : {-0.9, -0.1, 1e-9, 0.3, 0.75}) {
    EXPECT_EQ(object.Asin(x), std::atan(x / std::sqrt(x * -x + 1.0)));
    EXPECT_EQ(object.Acos(x), object.halfpi - std::atan(x / std::sqrt(x * -x + 1.0)));
    EXPECT_EQ(object.Sinh(x), (std::exp(x) - std::exp(-x)) * 0.5);
    EXPECT_EQ(object.Cosh(x), (std::exp(x) + std::exp(-x)) * 0.5);
    EXPECT_EQ(object.Tanh(x), 1.0 + (-2.0 * std::exp(-x)) / (std::exp(-x) + std::exp(x)));
    EXPECT_EQ(object.Asinh(x), std::log(x + std::sqrt(x * x + 1.0)));
    EXPECT_EQ(object.Acosh(x + 2.0), std::log(x + 2.0 + std::sqrt((x + 2.0) * (x + 2.0) - 1.0)));
    EXPECT_EQ(object.Atanh(x), std::log((1.0 + x) / (1.0 - x)) * 0.5);
  }
}

TEST_F(Class1Test, AcoshOfOneIsZeroWithoutAnError) {
  EXPECT_EQ(object.Acosh(1.0), 0.0);
  EXPECT_EQ(object.ierr, 0);
}

TEST_F(Class1Test, ArgumentsBeyondTheDomainGiveZeroAndTheNumberOfTheInvalidArgument) {
  expectFailure(object.Asin(2.0), ErrorNumber::InvalidCall);
  expectFailure(object.Asin(-1.0000001), ErrorNumber::InvalidCall);
  expectFailure(object.Acos(2.0), ErrorNumber::InvalidCall);
  expectFailure(object.Acosh(0.5), ErrorNumber::InvalidCall);
  expectFailure(object.Acosh(-2.0), ErrorNumber::InvalidCall);
  expectFailure(object.Atanh(2.0), ErrorNumber::InvalidCall);
  expectFailure(object.Atanh(-1.0), ErrorNumber::InvalidCall);
  expectFailure(object.Atanh(-2.0), ErrorNumber::InvalidCall);
}

TEST_F(Class1Test, AtanhOfOneDividesByZero) { expectFailure(object.Atanh(1.0), ErrorNumber::DivisionByZero); }

TEST_F(Class1Test, OverflowOfAnExponentialIsCaught) {
  for (const double x : {710.0, -710.0}) {
    expectFailure(object.Sinh(x), ErrorNumber::Overflow);
    expectFailure(object.Cosh(x), ErrorNumber::Overflow);
    expectFailure(object.Tanh(x), ErrorNumber::Overflow);
  }
}

TEST_F(Class1Test, OverflowOfASquareIsCaught) {
  expectFailure(object.Asin(1e200), ErrorNumber::Overflow);
  expectFailure(object.Acos(1e200), ErrorNumber::Overflow);
  expectFailure(object.Asinh(1e200), ErrorNumber::Overflow);
  expectFailure(object.Acosh(1e200), ErrorNumber::Overflow);
}

// x + sqrt(x^2 + 1) cancels to exactly 0 there; the form is kept, and the trap reports it.
TEST_F(Class1Test, AsinhFarBelowZeroIsALogarithmOfZero) {
  expectFailure(object.Asinh(-1e10), ErrorNumber::InvalidCall);
}

TEST_F(Class1Test, AnArgumentThatIsNoNumberIsAnError) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  for (const auto function : {&Class1::Asin, &Class1::Acos, &Class1::Sinh, &Class1::Cosh, &Class1::Tanh, &Class1::Asinh,
                              &Class1::Acosh, &Class1::Atanh})
    expectFailure((object.*function)(nan), ErrorNumber::Overflow);
}

TEST_F(Class1Test, ASuccessLeavesTheLastErrorStanding) {
  object.Asin(2.0);
  EXPECT_NE(object.Asin(0.5), 0.0);
  EXPECT_EQ(object.ierr, static_cast<Long>(ErrorNumber::InvalidCall));
  EXPECT_EQ(windowIerr, static_cast<Long>(ErrorNumber::InvalidCall));
}

}  // namespace
}  // namespace tavimor
