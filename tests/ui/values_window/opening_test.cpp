#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QWindow>

#include "runtime/number_text.h"
#include "ui/support/values_window_test.h"

namespace tavimor {
namespace {

using testing::ElementsAre;

class OpeningTheValues : public ValuesWindowTest {};

TEST_F(OpeningTheValues, TheWindowIsLoadedFromTheStartAndNotShown) {
  EXPECT_FALSE(values().isVisible());
  EXPECT_EQ(values().windowTitle(), QStringLiteral("Enter/Edit values of variables"));
  EXPECT_TRUE(window->isEnabled());
}

TEST_F(OpeningTheValues, TheGridHasALabelColumnAndAColumnOfValues) {
  edit(0);
  EXPECT_EQ(grid().Rows(), 3);
  EXPECT_EQ(grid().Cols(), 2);
  EXPECT_EQ(grid().FixedCols(), 1);
  EXPECT_EQ(grid().FixedRows(), 0);
  EXPECT_EQ(grid().ColAlignment(0), CellAlignment::RightCentre);
  EXPECT_EQ(grid().ColAlignment(1), CellAlignment::CentreCentre);
  EXPECT_EQ(cell(0, 0), "x(0)=");
  EXPECT_EQ(cell(2, 0), "x(2)=");
  EXPECT_THAT(column(), ElementsAre("0", "0.5", "1"));
  expectAgreement();
}

TEST_F(OpeningTheValues, TheCaptionNamesTheVariable) {
  edit(1);
  EXPECT_EQ(values().windowTitle(), QStringLiteral("Enter/edit values of variable: y"));
}

TEST_F(OpeningTheValues, TheWindowIsADialogOfTheMainWindowSoThatNothingCoversIt) {
  edit(0);
  EXPECT_EQ(values().windowType(), Qt::Dialog);
  EXPECT_EQ(values().windowHandle()->transientParent(), window->windowHandle());
}

TEST_F(OpeningTheValues, TheMainWindowStaysInSightAndRefusesInput) {
  edit(0);
  EXPECT_TRUE(window->isVisible());
  EXPECT_FALSE(window->isEnabled());
  click("cmdNextVar");
  EXPECT_EQ(model.CurVar, 1);
}

TEST_F(OpeningTheValues, TheEditorIsHiddenAndTheKeyboardIsInTheGridAtTheFirstValue) {
  edit(0);
  EXPECT_FALSE(entry().isVisible());
  EXPECT_EQ(focusName(), "MSFlexGridVars");
  EXPECT_EQ(grid().Row(), 0);
  EXPECT_EQ(grid().Col(), 1);
}

TEST_F(OpeningTheValues, CaptionsAndToolTipReadAsUsersKnowThem) {
  edit(0);
  EXPECT_EQ(values().cmdDelete->text(), QStringLiteral("Delete"));
  EXPECT_EQ(values().cmdDelete->toolTip(), QStringLiteral("Find maxima and minima"));
  EXPECT_EQ(values().cmdExit->text(), QStringLiteral("Done"));
}

TEST_F(OpeningTheValues, TheGridIsFilledAnewAtEachOpening) {
  edit(0);
  clickDone();
  model.VarX = 0.25;
  window->SetVarX(0, 1);
  edit(0);
  EXPECT_THAT(column(), ElementsAre("0", "0.25", "1"));
  clickDone();
  edit(1);
  EXPECT_THAT(column(), ElementsAre("0", "2"));
  EXPECT_EQ(cell(1, 0), "y(1)=");
  EXPECT_EQ(values().windowTitle(), QStringLiteral("Enter/edit values of variable: y"));
}

TEST_F(OpeningTheValues, ItBeginsAtTheFirstValueEachTime) {
  edit(0);
  clickCell(2);
  clickDone();
  edit(0);
  EXPECT_EQ(grid().Row(), 0);
  EXPECT_FALSE(entry().isVisible());
  EXPECT_EQ(focusName(), "MSFlexGridVars");
}

TEST_F(OpeningTheValues, ANameWithAPercentSignIsShownAsItStands) {
  model.VarName[0] = "%2";
  edit(0);
  EXPECT_EQ(cell(1, 0), "%2(1)=");
}

TEST_F(OpeningTheValues, TabGoesFromTheGridToTheEditorAndTheButtons) {
  edit(0);
  clickCell(1);
  press(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(focusName(), "MSFlexGridVars");
  press(Qt::Key_Tab);
  EXPECT_EQ(focusName(), "txtDataEntry");
  press(Qt::Key_Tab);
  EXPECT_EQ(focusName(), "cmdDelete");
  press(Qt::Key_Tab);
  EXPECT_EQ(focusName(), "cmdExit");
}

class WidthOfTheValues : public ValuesWindowTest {};

TEST_F(WidthOfTheValues, IsDoubledOnceAtTheStartAndLostWithTheWindow) {
  edit(0);
  const int doubled = grid().ColWidth(1);
  clickDone();
  edit(1);
  EXPECT_EQ(grid().ColWidth(1), doubled);
  values().close();
  edit(0);
  EXPECT_EQ(2 * grid().ColWidth(1), doubled);
  clickDone();
  edit(0);
  EXPECT_EQ(2 * grid().ColWidth(1), doubled);
}

TEST_F(WidthOfTheValues, HasRoomForTheLongestNumber) {
  edit(0);
  const double longest = -1.23456789012345e-300;
  EXPECT_GT(grid().ColWidth(1), grid().fontMetrics().horizontalAdvance(QString::fromStdString(numberText(longest))));
}

}  // namespace
}  // namespace tavimor
