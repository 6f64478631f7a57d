#include "runtime/number_text.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <random>

#include "runtime/val.h"

namespace tavimor {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

struct Form {
  const char* name;
  double value;
  const char* text;
  const char* written;
  const char* printed;
};

constexpr Form kForms[] = {
    {"Zero", 0.0, "0", "0", " 0 "},
    {"NegativeZero", -0.0, "0", "0", " 0 "},
    {"Whole", 3.0, "3", "3", " 3 "},
    {"NegativeWhole", -3.0, "-3", "-3", "-3 "},
    {"Fraction", 0.5, "0.5", ".5", " .5 "},
    {"NegativeFraction", -0.25, "-0.25", "-.25", "-.25 "},
    {"Mixed", -2.25, "-2.25", "-2.25", "-2.25 "},
    {"TenHasNoZeroToDrop", 10.5, "10.5", "10.5", " 10.5 "},
    {"LastFixedSmall", 1e-4, "0.0001", ".0001", " .0001 "},
    {"FirstExponentSmall", 9.999e-5, "9.999E-05", "9.999E-05", " 9.999E-05 "},
    {"SmallPower", 1e-5, "1E-05", "1E-05", " 1E-05 "},
    {"NegativeSmallPower", -1.5e-7, "-1.5E-07", "-1.5E-07", "-1.5E-07 "},
    {"LastFixedLarge", 999999999999999.0, "999999999999999", "999999999999999", " 999999999999999 "},
    {"FirstExponentLarge", 1e15, "1E+15", "1E+15", " 1E+15 "},
    {"HundredBillions", 1e14, "100000000000000", "100000000000000", " 100000000000000 "},
    {"RoundsUpToExponentForm", 999999999999999.6, "1E+15", "1E+15", " 1E+15 "},
    {"RoundsUpToFixedForm", 9.9999999999999999e-5, "0.0001", ".0001", " .0001 "},
    {"ThreeExponentDigits", 1e100, "1E+100", "1E+100", " 1E+100 "},
    {"FifteenDigits", 1.0 / 3.0, "0.333333333333333", ".333333333333333", " .333333333333333 "},
    {"NoSixteenthDigit", 0.1 + 0.2, "0.3", ".3", " .3 "},
    {"DroppedTrailingZeros", 1.50, "1.5", "1.5", " 1.5 "},
    {"LargestDouble", std::numeric_limits<double>::max(), "1.79769313486232E+308", "1.79769313486232E+308",
     " 1.79769313486232E+308 "},
    {"SmallestDouble", std::numeric_limits<double>::denorm_min(), "4.94065645841247E-324", "4.94065645841247E-324",
     " 4.94065645841247E-324 "},
    {"Infinity", kInfinity, "INF", "INF", " INF "},
    {"NegativeInfinity", -kInfinity, "-INF", "-INF", "-INF "},
    {"NotANumber", kNaN, "NAN", "NAN", " NAN "},
};

class NumberForms : public testing::TestWithParam<Form> {};

TEST_P(NumberForms, AreAsTheTableSays) {
  const Form& form = GetParam();
  EXPECT_EQ(numberText(form.value), form.text);
  EXPECT_EQ(writtenNumber(form.value), form.written);
  EXPECT_EQ(printedNumber(form.value), form.printed);
}

INSTANTIATE_TEST_SUITE_P(NumberText, NumberForms, testing::ValuesIn(kForms),
                         [](const auto& form) { return std::string(form.param.name); });

TEST(NumberText, ALongHasItsDigits) {
  EXPECT_EQ(numberText(Long{0}), "0");
  EXPECT_EQ(numberText(Long{-7}), "-7");
  EXPECT_EQ(printedNumber(Long{0}), " 0 ");
  EXPECT_EQ(printedNumber(Long{-7}), "-7 ");
  EXPECT_EQ(writtenNumber(std::numeric_limits<Long>::min()), "-2147483648");
}

double randomDouble(std::mt19937_64& random) {
  while (true) {
    const auto value = std::bit_cast<double>(std::uint64_t{random()});
    if (std::isfinite(value) && value != 0) return value;
  }
}

TEST(NumberText, IsThePrintfFormWithFifteenDigits) {
  std::mt19937_64 random(1);
  for (int n = 0; n < 100000; ++n) {
    const double value = randomDouble(random);
    char wanted[40];
    std::snprintf(wanted, sizeof wanted, "%.15G", value);
    ASSERT_EQ(numberText(value), wanted);
  }
}

// Fifteen digits survive text -> double -> text, so that a saved number never drifts.
TEST(NumberText, IsTheSameAfterItWasReadBack) {
  std::mt19937_64 random(2);
  for (int n = 0; n < 100000; ++n) {
    const double value = randomDouble(random);
    for (const std::string& text : {numberText(value), writtenNumber(value), printedNumber(value)}) {
      ASSERT_EQ(numberText(Val(text)), numberText(value));
    }
  }
}

TEST(NumberText, InfinitiesAndNoNumbersReadBack) {
  EXPECT_EQ(Val(printedNumber(kInfinity)), kInfinity);
  EXPECT_EQ(Val(printedNumber(-kInfinity)), -kInfinity);
  EXPECT_TRUE(std::isnan(Val(printedNumber(kNaN))));
}

}  // namespace
}  // namespace tavimor
