#include "runtime/long.h"

#include <gtest/gtest.h>

#include <limits>

#include "support/expect_error.h"

namespace tavimor {
namespace {

using test::expectError;

constexpr Long kLeast = std::numeric_limits<Long>::min();
constexpr Long kMost = std::numeric_limits<Long>::max();

TEST(Long, HalvesAreRoundedToTheEvenNeighbour) {
  for (Long even = -10; even <= 10; even += 2) {
    EXPECT_EQ(toLong(even - 0.5), even);
    EXPECT_EQ(toLong(even + 0.5), even);
  }
}

TEST(Long, OtherFractionsAreRoundedToTheNearest) {
  EXPECT_EQ(toLong(2.4999999), 2);
  EXPECT_EQ(toLong(2.5000001), 3);
  EXPECT_EQ(toLong(-2.5000001), -3);
  EXPECT_EQ(toLong(-0.2), 0);
}

TEST(Long, TheLimitsHoldAfterRounding) {
  EXPECT_EQ(toLong(2147483647.0), kMost);
  EXPECT_EQ(toLong(2147483647.4999), kMost);
  EXPECT_EQ(toLong(-2147483648.5), kLeast);
  expectError(ErrorNumber::Overflow, [] { toLong(2147483647.5); });
  expectError(ErrorNumber::Overflow, [] { toLong(-2147483648.6); });
}

TEST(Long, WhatIsNoNumberOverflows) {
  expectError(ErrorNumber::Overflow, [] { toLong(std::numeric_limits<double>::infinity()); });
  expectError(ErrorNumber::Overflow, [] { toLong(-std::numeric_limits<double>::infinity()); });
  expectError(ErrorNumber::Overflow, [] { toLong(std::numeric_limits<double>::quiet_NaN()); });
}

TEST(Long, ASumOrProductBeyondTheLimitsOverflows) {
  EXPECT_EQ(addLongs(kMost - 1, 1), kMost);
  EXPECT_EQ(addLongs(kLeast + 1, -1), kLeast);
  EXPECT_EQ(multiplyLongs(46340, 46340), 46340 * 46340);
  expectError(ErrorNumber::Overflow, [] { addLongs(kMost, 1); });
  expectError(ErrorNumber::Overflow, [] { addLongs(kLeast, -1); });
  expectError(ErrorNumber::Overflow, [] { multiplyLongs(46341, 46341); });
  expectError(ErrorNumber::Overflow, [] { multiplyLongs(kLeast, -1); });
}

}  // namespace
}  // namespace tavimor
