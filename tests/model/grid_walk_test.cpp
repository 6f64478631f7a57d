#include "model/grid_walk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

#include "runtime/run_time_error.h"

namespace tavimor {
namespace {

using ::testing::ElementsAre;
using ::testing::Optional;

Dimension problemWithCounts(const std::vector<Long>& counts) {
  Dimension model;
  model.LastVar = static_cast<Long>(counts.size()) - 1;
  for (std::size_t k = 0; k < counts.size(); ++k) model.LastPoint[k] = counts[k] - 1;
  model.F.redim(model.LastPoint);
  return model;
}

TEST(GridWalk, VisitsTheLastVariableFastestAndReturnsToTheFirstPoint) {
  Dimension model = problemWithCounts({3, 2});
  std::vector<std::pair<Long, Long>> visited;
  for (int n = 0; n < 7; ++n) {
    visited.emplace_back(model.StartIdx[0], model.StartIdx[1]);
    moveToNextPoint(model);
  }
  using Point = std::pair<Long, Long>;
  EXPECT_THAT(visited,
              ElementsAre(Point{0, 0}, Point{0, 1}, Point{1, 0}, Point{1, 1}, Point{2, 0}, Point{2, 1}, Point{0, 0}));
}

TEST(GridWalk, GoesFromTheFirstPointBackToTheLast) {
  Dimension model = problemWithCounts({3, 2});
  moveToPreviousPoint(model);
  EXPECT_THAT(model.StartIdx, ElementsAre(2, 1, 0, 0));
}

TEST(GridWalk, BackwardsUndoesForwardsAtEveryPointOfFourVariables) {
  Dimension model = problemWithCounts({2, 3, 1, 4});
  for (int n = 0; n < 2 * 3 * 1 * 4; ++n) {
    const PerVariable<Long> before = model.StartIdx;
    moveToNextPoint(model);
    EXPECT_NE(model.StartIdx, before);
    moveToPreviousPoint(model);
    EXPECT_EQ(model.StartIdx, before);
    moveToNextPoint(model);
  }
  EXPECT_EQ(model.StartIdx, PerVariable<Long>{}) << "as many steps as points lead around";
}

TEST(GridWalk, ASinglePointIsItsOwnNeighbour) {
  Dimension model = problemWithCounts({1});
  moveToNextPoint(model);
  EXPECT_THAT(model.StartIdx, ElementsAre(0, 0, 0, 0));
  moveToPreviousPoint(model);
  EXPECT_THAT(model.StartIdx, ElementsAre(0, 0, 0, 0));
}

TEST(Ring, JoinsItsEnds) {
  EXPECT_EQ(nextOnRing(3, 4), 4);
  EXPECT_EQ(nextOnRing(4, 4), 0);
  EXPECT_EQ(previousOnRing(1, 4), 0);
  EXPECT_EQ(previousOnRing(0, 4), 4);
  EXPECT_EQ(nextOnRing(0, 0), 0);
  EXPECT_EQ(previousOnRing(0, 0), 0);
}

TEST(FunctionAtStartIdx, IsTheTablesElement) {
  Dimension model = problemWithCounts({2, 3, 1, 4});
  model.StartIdx = {1, 2, 0, 3};
  functionAtStartIdx(model) = 7.5;
  EXPECT_EQ(model.F(1, 2, 0, 3), 7.5);
}

TEST(FunctionAtStartIdx, LiesWithinTheBounds) {
  Dimension model = problemWithCounts({2, 3});
  model.StartIdx = {0, -1, 0, 0};
  EXPECT_THROW(functionAtStartIdx(model), RunTimeError);
}

TEST(GridPointFromText, ReadsOneIndexPerVariable) {
  const Dimension model = problemWithCounts({3, 2, 5});
  EXPECT_THAT(gridPointFromText(model, "2,1,4"), Optional(ElementsAre(2, 1, 4, 0)));
  EXPECT_THAT(gridPointFromText(model, " 2 , 1x, 4 "), Optional(ElementsAre(2, 1, 4, 0)));
}

TEST(GridPointFromText, TakesTextForZeroAndIgnoresPartsBeyondTheVariables) {
  const Dimension model = problemWithCounts({3, 2});
  EXPECT_THAT(gridPointFromText(model, "abc,"), Optional(ElementsAre(0, 0, 0, 0)));
  EXPECT_THAT(gridPointFromText(model, "1,1,99,99,99"), Optional(ElementsAre(1, 1, 0, 0)));
}

TEST(GridPointFromText, RefusesAnIndexBeyondTheLast) {
  const Dimension model = problemWithCounts({3, 2});
  EXPECT_EQ(gridPointFromText(model, "3,0"), std::nullopt);
  EXPECT_EQ(gridPointFromText(model, "0,2"), std::nullopt);
  EXPECT_EQ(gridPointFromText(model, "2.1,0"), std::nullopt) << "compared before it is rounded";
}

TEST(GridPointFromText, LetsNegativeIndicesPass) {
  EXPECT_THAT(gridPointFromText(problemWithCounts({3}), "-1"), Optional(ElementsAre(-1, 0, 0, 0)));
}

TEST(GridPointFromText, RoundsHalvesToEven) {
  const Dimension model = problemWithCounts({9, 9});
  EXPECT_THAT(gridPointFromText(model, "2.5,3.5"), Optional(ElementsAre(2, 4, 0, 0)));
}

TEST(GridPointFromText, MissesTheSubscriptOfAPartThatIsNotThere) {
  const Dimension model = problemWithCounts({3, 2});
  try {
    gridPointFromText(model, "1");
    FAIL() << "a part is missing";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number(), ErrorNumber::SubscriptOutOfRange);
  }
}

}  // namespace
}  // namespace tavimor
