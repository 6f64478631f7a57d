#include "model/grid_walk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

#include "runtime/run_time_error.h"

namespace tavimor {
namespace {

using ::testing::ElementsAre;
using ::testing::Optional;

Problem problemWithCounts(const std::vector<Long>& counts) {
  Problem problem;
  problem.LastVar = static_cast<Long>(counts.size()) - 1;
  for (std::size_t k = 0; k < counts.size(); ++k) problem.LastPoint[k] = counts[k] - 1;
  return problem;
}

TEST(GridWalk, VisitsTheLastVariableFastestAndReturnsToTheFirstPoint) {
  const Problem problem = problemWithCounts({3, 2});
  PerVariable<Long> point{};
  std::vector<std::pair<Long, Long>> visited;
  for (int n = 0; n < 7; ++n) {
    visited.emplace_back(point[0], point[1]);
    point = nextPoint(problem, point);
  }
  using Point = std::pair<Long, Long>;
  EXPECT_THAT(visited,
              ElementsAre(Point{0, 0}, Point{0, 1}, Point{1, 0}, Point{1, 1}, Point{2, 0}, Point{2, 1}, Point{0, 0}));
}

TEST(GridWalk, NumbersThePointsInItsOrder) {
  const Problem problem = problemWithCounts({2, 3, 1, 4});
  PerVariable<Long> point{};
  for (int number = 1; number <= 2 * 3 * 1 * 4; ++number) {
    EXPECT_EQ(numberOfPoint(problem, point), number);
    point = nextPoint(problem, point);
  }
}

TEST(GridWalk, GoesFromTheFirstPointBackToTheLast) {
  const Problem problem = problemWithCounts({3, 2});
  PerVariable<Long> point{};
  point = previousPoint(problem, point);
  EXPECT_THAT(point, ElementsAre(2, 1, 0, 0));
}

TEST(GridWalk, BackwardsUndoesForwardsAtEveryPointOfFourVariables) {
  const Problem problem = problemWithCounts({2, 3, 1, 4});
  PerVariable<Long> point{};
  for (int n = 0; n < 2 * 3 * 1 * 4; ++n) {
    const PerVariable<Long> before = point;
    point = nextPoint(problem, point);
    EXPECT_NE(point, before);
    point = previousPoint(problem, point);
    EXPECT_EQ(point, before);
    point = nextPoint(problem, point);
  }
  EXPECT_EQ(point, PerVariable<Long>{}) << "as many steps as points lead around";
}

TEST(GridWalk, ASinglePointIsItsOwnNeighbour) {
  const Problem problem = problemWithCounts({1});
  PerVariable<Long> point{};
  point = nextPoint(problem, point);
  EXPECT_THAT(point, ElementsAre(0, 0, 0, 0));
  point = previousPoint(problem, point);
  EXPECT_THAT(point, ElementsAre(0, 0, 0, 0));
}

TEST(Ring, JoinsItsEnds) {
  EXPECT_EQ(nextOnRing(3, 4), 4);
  EXPECT_EQ(nextOnRing(4, 4), 0);
  EXPECT_EQ(previousOnRing(1, 4), 0);
  EXPECT_EQ(previousOnRing(0, 4), 4);
  EXPECT_EQ(nextOnRing(0, 0), 0);
  EXPECT_EQ(previousOnRing(0, 0), 0);
}

TEST(GridPointFromText, ReadsOneIndexPerVariable) {
  const Problem problem = problemWithCounts({3, 2, 5});
  EXPECT_THAT(gridPointFromText(problem, "2,1,4"), Optional(ElementsAre(2, 1, 4, 0)));
  EXPECT_THAT(gridPointFromText(problem, " 2 , 1x, 4 "), Optional(ElementsAre(2, 1, 4, 0)));
}

TEST(GridPointFromText, TakesTextForZeroAndIgnoresPartsBeyondTheVariables) {
  const Problem problem = problemWithCounts({3, 2});
  EXPECT_THAT(gridPointFromText(problem, "abc,"), Optional(ElementsAre(0, 0, 0, 0)));
  EXPECT_THAT(gridPointFromText(problem, "1,1,99,99,99"), Optional(ElementsAre(1, 1, 0, 0)));
}

TEST(GridPointFromText, RefusesAnIndexBeyondTheLast) {
  const Problem problem = problemWithCounts({3, 2});
  EXPECT_EQ(gridPointFromText(problem, "3,0"), std::nullopt);
  EXPECT_EQ(gridPointFromText(problem, "0,2"), std::nullopt);
  EXPECT_EQ(gridPointFromText(problem, "2.1,0"), std::nullopt) << "compared before it is rounded";
}

TEST(GridPointFromText, LetsNegativeIndicesPass) {
  EXPECT_THAT(gridPointFromText(problemWithCounts({3}), "-1"), Optional(ElementsAre(-1, 0, 0, 0)));
}

TEST(GridPointFromText, RoundsHalvesToEven) {
  const Problem problem = problemWithCounts({9, 9});
  EXPECT_THAT(gridPointFromText(problem, "2.5,3.5"), Optional(ElementsAre(2, 4, 0, 0)));
}

TEST(GridPointFromText, MissesTheSubscriptOfAPartThatIsNotThere) {
  const Problem problem = problemWithCounts({3, 2});
  try {
    gridPointFromText(problem, "1");
    FAIL() << "a part is missing";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number(), ErrorNumber::SubscriptOutOfRange);
  }
}

}  // namespace
}  // namespace tavimor
