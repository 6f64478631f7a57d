#include "analysis/right_digits.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace tavimor {
namespace {

TEST(RightDigits, TheNearestDoubleHasAllOfThem) { EXPECT_EQ(rightDigits(0.1, {Pair(0.1, 3e-18), 1e-25}), kMostDigits); }

TEST(RightDigits, CountTheDigitsThatAgree) {
  EXPECT_NEAR(rightDigits(1.001, {Pair(1.0), 1e-25}), 3.0, 1e-9);
  EXPECT_NEAR(rightDigits(-20.0002, {Pair(-20.0), 1e-25}), 5.0, 1e-9);
}

TEST(RightDigits, TheBoundIsTakenOff) {
  EXPECT_NEAR(rightDigits(1.001, {Pair(1.0), 1e-3}), -std::log10(2e-3 / (1 - 1e-3)), 1e-9);
}

TEST(RightDigits, ThereAreNoneWhereTheNumberCannotBeToldFromZero) {
  EXPECT_EQ(rightDigits(1e-20, {Pair(1e-20), 1e-19}), 0.0);
  EXPECT_EQ(rightDigits(0.0, {Pair(0.0), 0.0}), 0.0);
}

TEST(RightDigits, ThereAreNoneOfWhatIsNoNumber) {
  EXPECT_EQ(rightDigits(std::numeric_limits<double>::infinity(), {Pair(1.0), 0.0}), 0.0);
  EXPECT_EQ(rightDigits(std::nan(""), {Pair(1.0), 0.0}), 0.0);
}

TEST(RightDigits, AWrongSignHasNone) { EXPECT_EQ(rightDigits(-1.0, {Pair(1.0), 0.0}), 0.0); }

TEST(ShownDigits, AreRoundedDown) {
  EXPECT_EQ(shownDigits(5.99), 5);
  EXPECT_EQ(shownDigits(0.2), 0);
  EXPECT_EQ(shownDigits(kMostDigits), 15);
}

}  // namespace
}  // namespace tavimor
