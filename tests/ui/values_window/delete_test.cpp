#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ui/support/values_window_test.h"

namespace tavimor {
namespace {

using testing::ElementsAre;
using Values = std::vector<double>;

/// Five values of x and three of y, with a function that tells where an entry came from.
class DeletingValues : public ValuesWindowTest {
 protected:
  DeletingValues() : ValuesWindowTest(Empty()) {
    declare("2", "x,y");
    specify(0, "0", "4", "5", "1");
    click("cmdNextVar");
    specify(1, "10", "12", "3", "1");
    for (Long i = 0; i < 5; ++i)
      for (Long j = 0; j < 3; ++j) model.F(i, j, 0, 0) = entryAt(i, j);
  }

  static double entryAt(Long i, Long j) { return 100 + 10 * i + j; }

  /// The table, each row of which came from the given one of the first table.
  void expectRowsFrom(const std::vector<Long>& rows, const std::vector<Long>& columns) {
    ASSERT_EQ(model.F.last(),
              (PerVariable<Long>{static_cast<Long>(rows.size()) - 1, static_cast<Long>(columns.size()) - 1}));
    for (std::size_t i = 0; i < rows.size(); ++i)
      for (std::size_t j = 0; j < columns.size(); ++j)
        EXPECT_EQ(model.F(static_cast<Long>(i), static_cast<Long>(j), 0, 0), entryAt(rows[i], columns[j]));
  }
};

TEST_F(DeletingValues, MovesTheLastValueIntoTheGap) {
  edit(0);
  clickCell(2);
  clickDelete();
  EXPECT_THAT(column(), ElementsAre("0", "1", "4", "3"));
  EXPECT_EQ(model.X0, (Values{0, 1, 4, 3}));
  EXPECT_EQ(model.LastPoint[0], 3);
  EXPECT_EQ(textOf("txtPoints(0)"), "4");
  expectRowsFrom({0, 1, 4, 3}, {0, 1, 2});
  expectAgreement();
}

TEST_F(DeletingValues, DoesSoWithTheEditorHiddenToo) {
  edit(0);
  press(Qt::Key_Down);
  clickDelete();
  EXPECT_FALSE(entry().isVisible());
  EXPECT_THAT(column(), ElementsAre("0", "4", "2", "3"));
  EXPECT_EQ(model.X0, (Values{0, 4, 2, 3}));
  expectRowsFrom({0, 4, 2, 3}, {0, 1, 2});
}

TEST_F(DeletingValues, MovesTheEntriesAlongTheVariablesOwnAxis) {
  edit(1);
  clickCell(0);
  clickDelete();
  EXPECT_EQ(model.X1, (Values{12, 11}));
  EXPECT_EQ(model.X0, (Values{0, 1, 2, 3, 4}));
  expectRowsFrom({0, 1, 2, 3, 4}, {2, 1});
  EXPECT_EQ(textOf("txtPoints(1)"), "2");
  EXPECT_EQ(textOf("txtPoints(0)"), "5");
}

TEST_F(DeletingValues, TheEditorStaysOverTheRowAndShowsTheValueThatCame) {
  edit(0);
  clickCell(1);
  clickDelete();
  EXPECT_TRUE(entry().isVisible());
  EXPECT_EQ(entry().text(), QStringLiteral("4"));
  EXPECT_EQ(grid().Row(), 1);
  expectAgreement();
}

TEST_F(DeletingValues, DeletingTheLastRowHidesTheEditor) {
  edit(0);
  clickCell(4);
  clickDelete();
  EXPECT_FALSE(entry().isVisible());
  EXPECT_THAT(column(), ElementsAre("0", "1", "2", "3"));
  EXPECT_EQ(model.X0, (Values{0, 1, 2, 3}));
  expectRowsFrom({0, 1, 2, 3}, {0, 1, 2});
  EXPECT_EQ(grid().Row(), 3);
}

TEST_F(DeletingValues, ATypedValueOfTheLastRowMovesAsItWasTyped) {
  edit(0);
  clickCell(4);
  type("7.5");
  clickCell(0);
  clickDelete();
  EXPECT_EQ(model.X0, (Values{7.5, 1, 2, 3}));
}

TEST_F(DeletingValues, AMovedValueKeepsItsLastBits) {
  const double value = 0.1 + 0.2;
  edit(0);
  model.X0[4] = value;
  clickCell(1);
  clickDelete();
  EXPECT_EQ(model.X0[1], value);
  EXPECT_EQ(cell(1), "0.3");
}

TEST_F(DeletingValues, TheLastValueLeftCannotBeDeleted) {
  edit(1);
  clickCell(0);
  for (int n = 0; n < 4; ++n) clickDelete();
  EXPECT_EQ(model.LastPoint[1], 0);
  EXPECT_EQ(grid().Rows(), 1);
  EXPECT_EQ(model.X1.size(), 1U);
  EXPECT_EQ(textOf("txtPoints(1)"), "1");
  EXPECT_TRUE(entry().isVisible());
  expectAgreement();
}

TEST_F(DeletingValues, TheKeyboardDeletesToo) {
  edit(0);
  press(Qt::Key_Tab);
  EXPECT_EQ(focusName(), "cmdDelete");
  press(Qt::Key_Space);
  EXPECT_EQ(model.X0, (Values{4, 1, 2, 3}));
}

class DeletingAfterAFit : public ValuesWindowTest {};

TEST_F(DeletingAfterAFit, DropsTheResults) {
  click("cmdCompute");
  ASSERT_TRUE(model.FitDone);
  edit(0);
  EXPECT_TRUE(model.FitDone);
  clickDelete();
  EXPECT_FALSE(model.FitDone);
  EXPECT_EQ(results().count(), 0);
  EXPECT_TRUE(button("cmdEvaluations").isEnabledTo(window));
}

}  // namespace
}  // namespace tavimor
