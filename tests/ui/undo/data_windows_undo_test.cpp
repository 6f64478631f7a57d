#include <gtest/gtest.h>

#include "support/stored.h"
#include "ui/undo/undo_test.h"

namespace tavimor {
namespace {

class UndoInTheValuesWindow : public UndoTest {
 protected:
  UndoInTheValuesWindow() { openTwoVariables(); }
};

TEST_F(UndoInTheValuesWindow, ATypedValueComesBackInGridEditorAndModel) {
  edit(0);
  press(Qt::Key_Down);
  type("7.5");
  EXPECT_EQ(undoText(), "Undo: value 1 of x");
  undo(2);  // what the editor has of its own, then the value
  EXPECT_EQ(model.X0, (std::vector<double>{0, 0.5, 1}));
  EXPECT_EQ(cell(1), "0.5");
  EXPECT_EQ(entry().text(), "0.5");
  expectAgreement();
  redo();
  EXPECT_EQ(model.X0[1], 7);
  expectAgreement();
}

TEST_F(UndoInTheValuesWindow, EachValueIsAStepAndIsGoneTo) {
  edit(0);
  type("5");
  press(Qt::Key_Down);
  type("6");
  press(Qt::Key_Down);
  EXPECT_EQ(grid().Row(), 2);
  undo();
  EXPECT_EQ(grid().Row(), 1);
  EXPECT_EQ(model.X0, (std::vector<double>{5, 0.5, 1}));
  expectAgreement();
  undo();
  EXPECT_EQ(grid().Row(), 0);
  EXPECT_EQ(model.X0, (std::vector<double>{0, 0.5, 1}));
  expectAgreement();
  redo(2);
  EXPECT_EQ(model.X0, (std::vector<double>{5, 6, 1}));
  expectAgreement();
}

TEST_F(UndoInTheValuesWindow, BitsThatNoTextShowsComeBack) {
  model.X1[1] = 1.0 / 3.0;
  edit(1);
  press(Qt::Key_Down);
  type("1");
  press(Qt::Key_Up);
  EXPECT_EQ(model.X1[1], 1);
  undo();
  EXPECT_EQ(model.X1[1], 1.0 / 3.0);
}

TEST_F(UndoInTheValuesWindow, ItReachesBackToTheOpeningOfTheWindow) {
  click("cmdNextVar");
  enter("txtUL(1)", "9");
  edit(1);
  type("3");
  press(Qt::Key_Down);
  undo(2);
  EXPECT_TRUE(values().isVisible());
  EXPECT_EQ(model.X1[0], 0);
  EXPECT_EQ(textOf("txtUL(1)"), "9");
  EXPECT_EQ(values().findChild<QLabel*>("lblMessage")->text(),
            "Nothing is changed in this window; more can be undone after Done");
  clickDone();
  undo();
  EXPECT_EQ(textOf("txtUL(1)"), "2");
}

TEST_F(UndoInTheValuesWindow, AddedValuesAreUndoneThereAndTheAdditionAfterDone) {
  add(0, "2");
  EXPECT_EQ(column(), (std::vector<std::string>{"0", "0.5", "1", "0", "0"}));
  type("3");
  press(Qt::Key_Up);
  undo();
  EXPECT_EQ(model.X0[3], 0);
  expectAgreement();
  clickDone();
  undo();
  EXPECT_EQ(model.X0, (std::vector<double>{0, 0.5, 1}));
}

TEST_F(UndoInTheValuesWindow, AKeyThatDoesNothingIsExplained) {
  edit(0);
  clickCell(0);
  const auto* message = values().findChild<QLabel*>("lblMessage");
  press(Qt::Key_Backspace);
  EXPECT_EQ(message->text(), "Backspace does nothing here: use the Delete key, or type over a selection");
  type("5");
  EXPECT_EQ(message->text(), "");
  type(",");
  EXPECT_EQ(message->text(), "Numbers have digits, a decimal point, signs and E; no other key does anything here");
}

class UndoInTheFunctionWindow : public UndoTest {
 protected:
  UndoInTheFunctionWindow() { openTwoVariables(); }

  std::string functionText() { return functionBox("txtFun").text().toStdString(); }
  std::string message() { return function().findChild<QLabel*>("lblMessage")->text().toStdString(); }
};

TEST_F(UndoInTheFunctionWindow, ATypedValueComesBackAtItsPoint) {
  review("0,0");
  type("7.5");
  press(Qt::Key_Return);
  type("8");
  press(Qt::Key_Return);
  EXPECT_EQ(undoText(), "Undo: function value at (0,1)");
  undo();
  EXPECT_EQ(model.StartIdx, (PerVariable<Long>{0, 1}));
  EXPECT_EQ(model.F(0, 1, 0, 0), twoVariables().F(0, 1, 0, 0));
  EXPECT_EQ(functionText(), "9");
  undo();
  EXPECT_EQ(model.StartIdx, (PerVariable<Long>{0, 0}));
  EXPECT_EQ(model.F(0, 0, 0, 0), twoVariables().F(0, 0, 0, 0));
  redo(2);
  EXPECT_EQ(model.F(0, 0, 0, 0), 7.5);
  EXPECT_EQ(model.F(0, 1, 0, 0), 8);
}

TEST_F(UndoInTheFunctionWindow, AVariablesValueIsAStep) {
  review("2,1");
  QTest::mouseClick(&functionBox("txtVar(1)"), Qt::LeftButton);
  type("5");
  EXPECT_EQ(undoText(), "Undo: value 1 of y");
  QTest::mouseClick(&functionBox("txtFun"), Qt::LeftButton);
  undo();
  EXPECT_EQ(model.X1, (std::vector<double>{0, 2}));
  EXPECT_EQ(functionBox("txtVar(1)").text(), "2");
}

TEST_F(UndoInTheFunctionWindow, ItReachesBackToTheOpeningOfTheWindow) {
  review("0,0");
  undo();
  EXPECT_TRUE(function().isVisible());
  EXPECT_EQ(message(), "Nothing is changed in this window; more can be undone after Done");
}

TEST_F(UndoInTheFunctionWindow, TheLineTellsThePointAndTheEndOfTheWalk) {
  review("2,0");
  EXPECT_EQ(message(), "point 5 of 6");
  press(Qt::Key_Return);
  EXPECT_EQ(message(), "point 6 of 6");
  press(Qt::Key_Return);
  EXPECT_EQ(message(), "point 1 of 6; last point reached");
  press(Qt::Key_Return);
  EXPECT_EQ(message(), "point 2 of 6");
}

TEST_F(UndoInTheFunctionWindow, TheLineTellsWhyAnIndexIsNotLeft) {
  review("0,0");
  QTest::mouseClick(&functionBox("txtFunIndex(0)"), Qt::LeftButton);
  type("9");
  press(Qt::Key_Tab);
  EXPECT_EQ(message(), "An index from 0 to 2 is needed here");
  press(Qt::Key_A, Qt::ControlModifier);
  type("1");
  EXPECT_EQ(message(), "point 3 of 6");
}

TEST_F(UndoInTheFunctionWindow, AWalkIsNoStep) {
  review("0,0");
  const std::string before = undoText();
  for (int n = 0; n < 6; ++n) press(Qt::Key_Return);
  EXPECT_EQ(undoText(), before);
}

}  // namespace
}  // namespace tavimor
