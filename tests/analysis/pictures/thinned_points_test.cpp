#include "analysis/pictures/thinned_points.h"

#include <gmock/gmock.h>

#include <cmath>
#include <set>

namespace tavimor {
namespace {

double spread(std::size_t n) { return std::fmod(static_cast<double>(n) * 0.6180339887498949, 1.0); }
double line(std::size_t n) { return static_cast<double>(n); }

TEST(ThinnedPoints, AFewPointsStayAll) {
  const auto points = thinnedPoints(100, line, spread);
  ASSERT_EQ(points.size(), 100U);
  EXPECT_EQ(points[7].number, 7U);
  EXPECT_EQ(points[7].y, spread(7));
}

TEST(ThinnedPoints, EveryCellThatHasAPointKeepsOneAndNoMore) {
  const Raster raster{10, 10, 50};
  constexpr std::size_t kCount = 10000;
  const auto cell = [&](double x, double y) {
    const auto part = [](double share) { return std::min(static_cast<std::size_t>(share * 10), std::size_t{9}); };
    return part(x / (kCount - 1)) + 10 * part((y - spread(0)) / 0.99995);
  };
  std::set<std::size_t> all, kept;
  for (std::size_t n = 0; n < kCount; ++n) all.insert(cell(line(n), spread(n)));
  const auto points = thinnedPoints(kCount, line, spread, raster);
  for (const PicturePoint& point : points) kept.insert(cell(point.x, point.y));
  EXPECT_EQ(kept.size(), all.size());
  EXPECT_EQ(points.size(), all.size());
}

TEST(ThinnedPoints, WhatIsNotFiniteIsLeftOut) {
  const auto points = thinnedPoints(3, line, [](std::size_t n) { return n == 1 ? NAN : 1.0; });
  ASSERT_EQ(points.size(), 2U);
  EXPECT_EQ(points[1].number, 2U);
}

TEST(ThinnedPoints, ValuesAtTheEndsOfTheRangeOfDoublesAreThinnedToo) {
  const auto points = thinnedPoints(
      10000, [](std::size_t n) { return n % 2 == 0 ? -1.5e308 : 1.5e308; }, [](std::size_t) { return 2.0; });
  EXPECT_EQ(points.size(), 2U);
}

}  // namespace
}  // namespace tavimor
