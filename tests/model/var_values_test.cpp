#include "model/var_values.h"

#include <gtest/gtest.h>

#include "support/expect_error.h"
#include "support/stored_problems.h"

namespace tavimor {
namespace {

using test::expectError;
using test::gridProblem;
using Values = std::vector<double>;

TEST(VarValues, PassThroughVarX) {
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

TEST(VarValues, AVariableNumberOutsideZeroToThreeChangesNothing) {
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

TEST(VarValues, AnIndexOutsideTheListIsAnError) {
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

TEST(VarValues, ResizingKeepsTheValuesAndAddsZeros) {
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

TEST(VarValues, DefaultValuesAreGeneratedOnce) {
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

TEST(VarValues, AVariableListBeyondTheFourthIsAnError) {
  Dimension model;
  expectError(ErrorNumber::SubscriptOutOfRange, [&] { valueList(model, 4); });
  expectError(ErrorNumber::SubscriptOutOfRange, [&] { valueList(model, -1); });
}

// The last value takes the place of the one that goes, in the list and in the table.
TEST(DeleteValue, MovesTheLastValueIntoTheGap) {
  for (Long v = 0; v < 3; ++v)
    for (Long r = 0; r < 4; ++r) {
      const Dimension before = gridProblem({4, 4, 4});
      Dimension model = before;
      deleteValue(model, v, r);
      ASSERT_EQ(model.LastPoint[v], 2);
      PerVariable<Long> last = before.LastPoint;
      last[v] = 2;
      ASSERT_EQ(model.F.last(), last);
      for (Long i = 0; i <= 2; ++i) EXPECT_EQ(valueList(model, v)[i], i == r ? 3 : i);
      PerVariable<Long> i{};
      for (i[0] = 0; i[0] <= last[0]; ++i[0])
        for (i[1] = 0; i[1] <= last[1]; ++i[1])
          for (i[2] = 0; i[2] <= last[2]; ++i[2]) {
            PerVariable<Long> from = i;
            if (i[v] == r) from[v] = 3;
            ASSERT_EQ(model.F(i[0], i[1], i[2], 0), before.F(from[0], from[1], from[2], 0));
          }
    }
}

TEST(DeleteValue, KeepsTheOtherVariables) {
  Dimension model = gridProblem({3, 2});
  deleteValue(model, 0, 1);
  EXPECT_EQ(model.X1, (Values{0, 1}));
  EXPECT_EQ(model.LastPoint[1], 1);
}

TEST(DeleteValue, LeavesASingleValueAlone) {
  Dimension model = gridProblem({1, 2});
  const Dimension before = model;
  deleteValue(model, 0, 0);
  test::expectSameProblem(model, before);
}

TEST(DeleteValue, OfAnIndexOutsideTheListIsAnErrorAndChangesNothing) {
  Dimension model = gridProblem({3, 2});
  const Dimension before = model;
  expectError(ErrorNumber::SubscriptOutOfRange, [&] { deleteValue(model, 0, 3); });
  expectError(ErrorNumber::SubscriptOutOfRange, [&] { deleteValue(model, 0, -1); });
  test::expectSameProblem(model, before);
}

}  // namespace
}  // namespace tavimor
