#include "runtime/fifteen_digits.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <random>
#include <string>

namespace tavimor {
namespace {

std::string decimal(double magnitude) {
  char text[kRoomForDecimal];
  return {text, putDecimal(fifteenDigits(magnitude), text)};
}

// What the C library makes of it, without the zero before the point.
std::string expected(double magnitude) {
  char text[64];
  std::snprintf(text, sizeof text, "%.15g", magnitude);
  const std::string whole = text;
  return whole.starts_with("0.") ? whole.substr(1) : whole;
}

TEST(FifteenDigits, AreThoseOfTheCLibrary) {
  std::mt19937_64 random(15);
  std::uniform_real_distribution<double> exponent(-4.0, 15.0);
  for (int n = 0; n < 300000; ++n) {
    const double magnitude = std::pow(10.0, exponent(random));
    if (magnitude >= kMostMagnitude || magnitude < kLeastMagnitude) continue;
    ASSERT_EQ(decimal(magnitude), expected(magnitude));
  }
}

TEST(FifteenDigits, BesidePowersOfTenAreThoseOfTheCLibrary) {
  for (int power = -4; power <= 14; ++power) {
    double below = std::pow(10.0, power), above = below;
    for (int n = 0; n < 200; ++n) {
      if (below >= kLeastMagnitude) {
        ASSERT_EQ(decimal(below), expected(below));
      }
      ASSERT_EQ(decimal(above), expected(above));
      below = std::nextafter(below, 0.0);
      above = std::nextafter(above, 1e300);
    }
  }
}

// Halves, quarters, eighths: the sixteenth digit and all behind it are exactly half a unit of the fifteenth.
TEST(FifteenDigits, HalvesGoToTheEvenDigit) {
  EXPECT_EQ(decimal(100000000000000.5), "100000000000000");
  EXPECT_EQ(decimal(100000000000001.5), "100000000000002");
  std::mt19937_64 random(2);
  for (int n = 0; n < 100000; ++n) {
    const double magnitude = static_cast<double>(random() % 4000000000000) + static_cast<double>(random() % 256) / 256;
    if (magnitude < 1) continue;
    ASSERT_EQ(decimal(magnitude), expected(magnitude));
  }
}

TEST(FifteenDigits, AtTheEndsOfTheirRange) {
  EXPECT_EQ(decimal(kLeastMagnitude), ".0001");
  EXPECT_EQ(decimal(std::nextafter(kMostMagnitude, 0.0)), "999999999999999");
}

}  // namespace
}  // namespace tavimor
