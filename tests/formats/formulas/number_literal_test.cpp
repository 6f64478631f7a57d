#include "formats/formulas/number_literal.h"

#include <gtest/gtest.h>

#include <bit>
#include <charconv>
#include <cmath>
#include <random>

namespace tavimor {
namespace {

double read(const std::string& literal, std::chars_format format) {
  double value = 0.0;
  std::from_chars(literal.data(), literal.data() + literal.size(), value, format);
  return value;
}

TEST(DecimalLiteral, IsShortAndNeverAWholeNumber) {
  EXPECT_EQ(decimalLiteral(0.1), "0.1");
  EXPECT_EQ(decimalLiteral(-3), "-3.0");
  EXPECT_EQ(decimalLiteral(0.0), "0.0");
  EXPECT_EQ(decimalLiteral(-0.0), "-0.0");
  EXPECT_EQ(decimalLiteral(2.5e-7), "2.5e-07");
  EXPECT_EQ(decimalLiteral(1e20), "1e+20");
  EXPECT_EQ(decimalLiteral(0.1 + 0.2), "0.30000000000000004");
}

TEST(DecimalLiteral, BringsTheBitsOfRandomNumbersBack) {
  std::mt19937_64 random(1);
  for (int n = 0; n < 100000; ++n) {
    const auto bits = random();
    const auto value = std::bit_cast<double>(std::uint64_t{bits});
    if (!std::isfinite(value)) continue;
    EXPECT_EQ(std::bit_cast<std::uint64_t>(read(decimalLiteral(value), std::chars_format::general)), bits);
    const std::string hexadecimal = hexadecimalLiteral(std::abs(value)).substr(2);
    EXPECT_EQ(read(hexadecimal, std::chars_format::hex), std::abs(value));
  }
}

TEST(FortranLiteral, HasTheExponentOfDoublePrecision) {
  EXPECT_EQ(fortranLiteral(0.1), "0.1d0");
  EXPECT_EQ(fortranLiteral(-2.5e-7), "-2.5d-07");
}

TEST(HexadecimalLiteral, HasItsSignInFront) {
  EXPECT_EQ(hexadecimalLiteral(3.0), "0x1.8p+1");
  EXPECT_EQ(hexadecimalLiteral(-3.0), "-0x1.8p+1");
}

}  // namespace
}  // namespace tavimor
