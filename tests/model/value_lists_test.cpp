#include "model/value_lists.h"

#include <gtest/gtest.h>

#include "model/delete_value.h"
#include "support/expect_error.h"
#include "support/problem.h"
#include "support/stored_problems.h"

namespace tavimor {
namespace {

using test::expectError;
using test::gridProblem;
using Values = std::vector<double>;

TEST(ValueLists, PassThroughVarX) {
  Dimension model = gridProblem({2, 2, 2, 2});
  for (Long v = 0; v < kMaxVariables; ++v) {
    model.VarX = 10 + v;
    SetVarX(model, v, 1);
  }
  EXPECT_EQ(model.X0, (Values{0, 10}));
  EXPECT_EQ(model.X1, (Values{0, 11}));
  EXPECT_EQ(model.X2, (Values{0, 12}));
  EXPECT_EQ(model.X3, (Values{0, 13}));
  GetVarX(model, 2, 1);
  EXPECT_EQ(model.VarX, 12);
}

TEST(ValueLists, AVariableNumberOutsideZeroToThreeChangesNothing) {
  Dimension model = gridProblem({2, 2});
  const Dimension before = model;
  model.VarX = 7;
  for (const Long v : {-1, 4, 5}) {
    GetVarX(model, v, 0);
    EXPECT_EQ(model.VarX, 7);
    SetVarX(model, v, 0);
    ResizeVarValues(model, v);
    deleteValue(model, v, 0);
    test::expectSameProblem(model, before);
  }
}

TEST(ValueLists, AnIndexOutsideTheListIsAnError) {
  Dimension model = gridProblem({3});
  model.VarX = 7;
  for (const Long i : {-1, 3}) {
    expectError(ErrorNumber::SubscriptOutOfRange, [&] { GetVarX(model, 0, i); });
    expectError(ErrorNumber::SubscriptOutOfRange, [&] { SetVarX(model, 0, i); });
  }
  expectError(ErrorNumber::SubscriptOutOfRange, [&] { GetVarX(model, 1, 1); });
  EXPECT_EQ(model.VarX, 7);
  EXPECT_EQ(model.X0, (Values{0, 1, 2}));
}

TEST(ValueLists, ResizingKeepsTheValuesAndAddsZeros) {
  Dimension model = gridProblem({3});
  model.LastPoint[0] = 4;
  ResizeVarValues(model, 0);
  EXPECT_EQ(model.X0, (Values{0, 1, 2, 0, 0}));
  model.LastPoint[0] = 1;
  ResizeVarValues(model, 0);
  EXPECT_EQ(model.X0, (Values{0, 1}));
  model.LastPoint[0] = -1;
  expectError(ErrorNumber::SubscriptOutOfRange, [&] { ResizeVarValues(model, 0); });
  EXPECT_EQ(model.X0, (Values{0, 1}));
}

TEST(ValueLists, DefaultValuesAreGeneratedOnce) {
  Dimension model;
  model.LastPoint[1] = 3;
  model.LowerLimit[1] = -1;
  model.Step[1] = 0.1;
  giveDefaultValues(model, 1);
  EXPECT_TRUE(model.ValuesGiven[1]);
  EXPECT_EQ(model.X1, (Values{-1 + 0 * 0.1, -1 + 1 * 0.1, -1 + 2 * 0.1, -1 + 3 * 0.1}));
  model.X1[2] = 9;
  giveDefaultValues(model, 1);
  EXPECT_EQ(model.X1[2], 9);
}

TEST(ValueLists, AVariableListBeyondTheFourthIsAnError) {
  Dimension model;
  expectError(ErrorNumber::SubscriptOutOfRange, [&] { valueList(model, 4); });
  expectError(ErrorNumber::SubscriptOutOfRange, [&] { valueList(model, -1); });
}

// The last value takes the place of the one that goes, in the list and in the table.
TEST(ValueLists, GiveThePointOfAGridByItsIndices) {
  const Dimension model = test::problem({{"x", {1, 2}, 1, 0}, {"y", {3, 5, 7}, 1, 0}});
  EXPECT_EQ(gridPoint(model, {1, 2, 0, 0}), (std::vector<double>{2, 7}));
}

}  // namespace
}  // namespace tavimor
