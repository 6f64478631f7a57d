#include "analysis/typed_value.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "runtime/val.h"
#include "support/exact_fit.h"

namespace tavimor {
namespace {

using test::exactly;
using test::exactValue;

struct TypedCase {
  const char* name;
  const char* text;
};

const TypedCase kTypedCases[] = {
    {"ATenth", "0.1"},
    {"FifteenDigits", "123456789.012345"},
    {"ANegativeOne", "-8.781464495"},
    {"ASmallOne", "6.62607015E-34"},
    {"ATinyOne", "4.9406E-249"},
    {"ALargeOne", "1.98847E+30"},
    {"AHugeOne", "9.99999999999999E+249"},
    {"JustBelowAPowerOfTen", "999999999999999"},
    {"APowerOfTen", "1E-07"},
    {"Ones", "0.111111111111111"},
};

class TypedNumber : public testing::TestWithParam<TypedCase> {};

TEST_P(TypedNumber, StandsForItsDecimal) {
  const double value = Val(GetParam().text);
  const mpq_class wanted = exactValue(value, Reading::AsTyped);
  const mpq_class error = (exactly(typedValue(value)) - wanted) / wanted;
  EXPECT_LE(std::fabs(error.get_d()), kTypedRounding);
  EXPECT_EQ(typedValue(value).high, value);
}

INSTANTIATE_TEST_SUITE_P(Cases, TypedNumber, testing::ValuesIn(kTypedCases),
                         [](const auto& one) { return one.param.name; });

TEST(TypedValue, OfRandomDecimalsIsRight) {
  std::mt19937_64 random(15);
  for (int n = 0; n < 20000; ++n) {
    char text[40];
    const double digits = std::uniform_real_distribution<double>(-10, 10)(random);
    const int places = std::uniform_int_distribution<int>(0, 14)(random);
    const int exponent = std::uniform_int_distribution<int>(-235, 235)(random);
    std::snprintf(text, sizeof text, "%.*fE%d", places, digits, exponent);
    const double value = Val(text);
    if (value == 0.0) continue;
    const mpq_class wanted = exactValue(value, Reading::AsTyped);
    const mpq_class error = (exactly(typedValue(value)) - wanted) / wanted;
    const bool isNear = std::fabs(value) >= 1e-8 && std::fabs(value) < 1e37;
    const double most = isNear ? 2.001 * kUnitRoundoff * kUnitRoundoff : kTypedRounding;
    ASSERT_LE(std::fabs(error.get_d()), most) << text;
  }
}

TEST(TypedValue, ADoubleThatNoShortDecimalGivesStandsForItself) {
  const double third = 1.0 / 3.0;
  EXPECT_EQ(typedValue(third).low, 0.0);
  EXPECT_FALSE(isExactDecimal(third));
  const double beside = std::nextafter(0.1, 1.0);
  EXPECT_EQ(typedValue(beside).low, 0.0);
}

TEST(TypedValue, ExactDecimalsAreToldApart) {
  for (const double exact : {0.0, 1.0, -0.5, 0.375, 1e22, 12345.0}) EXPECT_TRUE(isExactDecimal(exact)) << exact;
  for (const double rounded : {0.1, 1e-5, 1e23, 0.3}) EXPECT_FALSE(isExactDecimal(rounded)) << rounded;
}

TEST(TypedValue, WhatIsNoNumberStaysAsItIs) {
  const double infinity = std::numeric_limits<double>::infinity();
  EXPECT_EQ(typedValue(infinity).high, infinity);
  EXPECT_TRUE(std::isnan(typedValue(std::nan("")).high));
  EXPECT_EQ(typedValue(std::numeric_limits<double>::denorm_min()).low, 0.0);
}

TEST(TypedValue, AsStoredEveryDoubleStandsForItself) {
  EXPECT_EQ(valueRead(0.1, Reading::AsStored).low, 0.0);
  EXPECT_NE(valueRead(0.1, Reading::AsTyped).low, 0.0);
}

TEST(TypedValue, TheMiddleOfDecimalsIsADecimal) {
  const Pair middle = middleOf(typedValue(0.1), typedValue(0.4));
  EXPECT_LE(std::fabs(mpq_class(exactly(middle) - mpq_class(1, 4)).get_d()), 2 * kPairError);
}

}  // namespace
}  // namespace tavimor
