#include "formats/tables/largest_grid.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <set>
#include <utility>

namespace tavimor {

namespace {

using Missing = std::set<std::pair<int, int>>;

// A grid of nx by ny points without some of them.
GridPoints gridWithout(int nx, int ny, const Missing& missing) {
  GridPoints points;
  points.variables.resize(2);
  for (int i = 0; i < nx; ++i) points.variables[0].values.push_back(i);
  for (int j = 0; j < ny; ++j) points.variables[1].values.push_back(j);
  for (int i = 0; i < nx; ++i)
    for (int j = 0; j < ny; ++j) {
      if (missing.contains({i, j})) continue;
      points.variables[0].index.push_back(static_cast<std::uint32_t>(i));
      points.variables[1].index.push_back(static_cast<std::uint32_t>(j));
      points.function.push_back(i + j);
      points.lines.push_back(1);
    }
  return points;
}

std::optional<FullGrid> largestWithout(int nx, int ny, const Missing& missing) {
  const GridPoints points = gridWithout(nx, ny, missing);
  return largestFullGrid(points, sortPoints(points));
}

}  // namespace

TEST(LargestFullGrid, LeavesOutTheValueWithTheFewestPoints) {
  const auto full = largestWithout(5, 3, {{2, 1}});
  ASSERT_TRUE(full);
  ASSERT_EQ(full->leftOut.size(), 1U);
  EXPECT_EQ(full->leftOut[0].variable, 0U);
  EXPECT_EQ(full->leftOut[0].value, 2U);
  EXPECT_EQ(full->lostPoints, 2U);
}

TEST(LargestFullGrid, OneValueThatMissesManyPointsGoesAlone) {
  const auto full = largestWithout(6, 6, {{0, 4}, {1, 4}, {3, 4}, {5, 4}});
  ASSERT_TRUE(full);
  ASSERT_EQ(full->leftOut.size(), 1U);
  EXPECT_EQ(full->leftOut[0].variable, 1U);
  EXPECT_EQ(full->leftOut[0].value, 4U);
  EXPECT_EQ(full->lostPoints, 2U);
}

TEST(LargestFullGrid, GapsFarApartTakeSeveralValues) {
  const auto full = largestWithout(6, 6, {{0, 0}, {3, 5}});
  ASSERT_TRUE(full);
  EXPECT_EQ(full->leftOut.size(), 2U);
}

TEST(LargestFullGrid, NothingMissesInWhatStays) {
  const Missing missing = {{0, 1}, {2, 2}, {4, 0}, {4, 3}, {6, 6}};
  const auto full = largestWithout(8, 7, missing);
  ASSERT_TRUE(full);
  for (const auto& [i, j] : missing) EXPECT_FALSE(full->kept[0][i] && full->kept[1][j]) << i << ' ' << j;
}

TEST(LargestFullGrid, IsNothingWhereAVariableWouldKeepOneValue) { EXPECT_FALSE(largestWithout(2, 2, {{0, 0}})); }

}  // namespace tavimor
