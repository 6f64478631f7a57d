#include "model/delete_value.h"

#include <gtest/gtest.h>

#include "model/value_lists.h"
#include "support/expect_error.h"
#include "support/stored_problems.h"

namespace tavimor {
namespace {

using test::expectError;
using test::gridProblem;
using Values = std::vector<double>;

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
