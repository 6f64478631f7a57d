#include "analysis/pictures/round_numbers.h"

#include <gmock/gmock.h>

#include <cmath>

namespace tavimor {
namespace {

using testing::DoubleEq;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

TEST(RoundNumbers, AreMultiplesOfOneTwoOrFiveTimesAPowerOfTen) {
  EXPECT_THAT(roundNumbersBetween(0.0, 1.0, 5),
              ElementsAre(DoubleEq(0.2), DoubleEq(0.4), DoubleEq(0.6), DoubleEq(0.8)));
  EXPECT_THAT(roundNumbersBetween(-3.0, 12.0, 4), ElementsAre(0.0, 5.0, 10.0));
  EXPECT_THAT(roundNumbersBetween(1e300, 9e300, 2), ElementsAre(5e300));
}

TEST(RoundNumbers, AreNeverMoreThanAskedFor) {
  for (const double upper : {1.0, 1.7, 2.3, 4.9, 9.9, 1e-5, 1e7})
    EXPECT_LE(roundNumbersBetween(0.0, upper, 10).size(), 10U) << upper;
}

TEST(RoundNumbers, ThereAreNoneBetweenWhatDoesNotAscendOrIsNotFinite) {
  EXPECT_THAT(roundNumbersBetween(1.0, 1.0, 5), IsEmpty());
  EXPECT_THAT(roundNumbersBetween(2.0, 1.0, 5), IsEmpty());
  EXPECT_THAT(roundNumbersBetween(0.0, INFINITY, 5), IsEmpty());
  EXPECT_THAT(roundNumbersBetween(NAN, 1.0, 5), IsEmpty());
}

TEST(RoundNumbers, ThereAreNoneBetweenNeighbours) {
  EXPECT_THAT(roundNumbersBetween(1.0, std::nextafter(1.0, 2.0), 5), IsEmpty());
}

TEST(RoundNumbers, TheRangeMayBeWiderThanADoubleHolds) {
  EXPECT_THAT(roundNumbersBetween(-1.5e308, 1.5e308, 4), SizeIs(3));
}

TEST(AxisExponent, IsThatOfNumbersBeyondUsualSizesAlone) {
  EXPECT_EQ(axisExponent(0.0, 0.0), 0);
  EXPECT_EQ(axisExponent(-1e100, 1e-100), 0);
  EXPECT_EQ(axisExponent(0.0, 5e300), 300);
  EXPECT_EQ(axisExponent(-2e-310, 0.0), -310);
}

TEST(AxisExponent, DividesNumbersOfAnySize) {
  EXPECT_DOUBLE_EQ(dividedByPower(5e300, 300), 5.0);
  EXPECT_NEAR(dividedByPower(-2e-310, -310), -2.0, 1e-6);
  EXPECT_EQ(dividedByPower(3.5, 0), 3.5);
}

}  // namespace
}  // namespace tavimor
