#include "cli/point.h"

#include <gtest/gtest.h>

namespace tavimor {
namespace {

TEST(ParsePoint, LeavesTheEntriesBeyondTheCountAtZero) {
  EXPECT_EQ(parsePoint("1.5 -2", 2), (PerVariable<double>{1.5, -2, 0, 0}));
}

TEST(ParsePoint, TakesAllFormsOfNumbers) {
  EXPECT_EQ(parsePoint(".5,-.25,1E3,+4.", 4), (PerVariable<double>{0.5, -0.25, 1000, 4}));
}

TEST(ParsePoint, NeedsSomethingBetweenTheNumbers) {
  EXPECT_FALSE(parsePoint("1-2", 2));
  EXPECT_FALSE(parsePoint("1.5.5", 2));
}

TEST(ParsePoint, TakesNeitherMoreNorLess) {
  EXPECT_FALSE(parsePoint("1 2 3", 2));
  EXPECT_FALSE(parsePoint("1", 2));
  EXPECT_FALSE(parsePoint("", 1));
}

TEST(ParsePoint, TakesOneCommaAtMost) {
  EXPECT_TRUE(parsePoint("1 , 2", 2));
  EXPECT_FALSE(parsePoint("1,,2", 2));
  EXPECT_FALSE(parsePoint(",1", 1));
  EXPECT_FALSE(parsePoint("1,", 1));
}

TEST(ParsePoint, TakesNothingBehindTheNumbers) {
  EXPECT_FALSE(parsePoint("1 2;", 2));
  EXPECT_FALSE(parsePoint("1 2 m", 2));
  EXPECT_TRUE(parsePoint("1 2 \r", 2));
}

}  // namespace
}  // namespace tavimor
