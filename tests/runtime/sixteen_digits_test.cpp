#include "runtime/sixteen_digits.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <random>
#include <string>

namespace tavimor {
namespace {

std::string textOf(const SixteenDigits& digits) {
  std::string text;
  for (const std::uint64_t word : {digits.first, digits.second})
    for (int n = 0; n < 8; ++n) text += static_cast<char>('0' + (word >> 8 * n & 0xFF));
  return text;
}

std::string expected(std::uint32_t upper, std::uint32_t lower) {
  char text[32];
  std::snprintf(text, sizeof text, "%08u%08u", upper, lower);
  return text;
}

// Every pair and every four occurs, and with it every quotient.
TEST(SixteenDigits, AreThoseOfTheirNumbers) {
  for (std::uint32_t four = 0; four < 10000; ++four) {
    const std::uint32_t upper = four * 10000 + (9999 - four), lower = (four * 7919 % 10000) * 10000 + four;
    ASSERT_EQ(textOf(sixteenDigits(upper, lower)), expected(upper, lower));
  }
  std::mt19937 random(16);
  std::uniform_int_distribution<std::uint32_t> eight(0, 99999999);
  for (int n = 0; n < 300000; ++n) {
    const std::uint32_t upper = eight(random), lower = eight(random);
    ASSERT_EQ(textOf(sixteenDigits(upper, lower)), expected(upper, lower));
  }
  EXPECT_EQ(textOf(sixteenDigits(99999999, 99999999)), "9999999999999999");
}

TEST(SixteenDigits, BesideEveryMultipleOfTenThousandAreThoseOfTheirNumbers) {
  for (std::uint32_t four = 1; four < 10000; ++four) {
    const std::uint32_t upper = four * 10000 - 1, lower = four * 10000;
    ASSERT_EQ(textOf(sixteenDigits(upper, lower)), expected(upper, lower));
  }
}

TEST(SixteenDigits, FromOneOnHaveZerosBehind) {
  const std::string text = "1234567898765432";
  for (int n = 0; n < 16; ++n)
    EXPECT_EQ(textOf(sixteenDigits(12345678, 98765432).from(n)), text.substr(n) + std::string(n, '0'));
}

TEST(SixteenDigits, AreSignificantUpToTheLastThatIsNotZero) {
  EXPECT_EQ(sixteenDigits(10000000, 0).significant(), 1);
  EXPECT_EQ(sixteenDigits(12345678, 0).significant(), 8);
  EXPECT_EQ(sixteenDigits(10000000, 10000000).significant(), 9);
  EXPECT_EQ(sixteenDigits(0, 1).significant(), 16);
}

}  // namespace
}  // namespace tavimor
