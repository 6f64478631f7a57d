#include <gtest/gtest.h>

#include "support/stored.h"
#include "ui/undo/undo_test.h"

namespace tavimor {
namespace {

// What is lost by a rule of the program comes back.
class Losses : public UndoTest {
 protected:
  // One variable with 3 values; the function 1, 2, 4 in a fit of degree 1.
  void declareWithFunction() {
    declare("1", "x");
    specify(0, "0", "2", "3", "1");
  }

  std::vector<double> functionValues() { return {model.F.data(), model.F.data() + model.F.size()}; }
};

TEST_F(Losses, FunctionValuesThatAnotherNumberOfValuesSetToZero) {
  declareWithFunction();
  for (Long i = 0; i < 3; ++i) model.F(i, 0, 0, 0) = 1.0 / (i + 3);
  const std::vector<double> before = functionValues();
  enter("txtPoints(0)", "5");
  press(Qt::Key_Tab);
  EXPECT_EQ(functionValues(), std::vector<double>(5, 0.0));
  EXPECT_EQ(undoText(), "Undo: number of values of x 3 -> 5");
  undo();
  EXPECT_EQ(functionValues(), before);
  EXPECT_EQ(model.LastPoint[0], 2);
  redo();
  EXPECT_EQ(functionValues(), std::vector<double>(5, 0.0));
  EXPECT_EQ(model.LastPoint[0], 4);
}

TEST_F(Losses, FunctionValuesThatACaptureSetToZeroBeforeTheFieldWasLeft) {
  declareWithFunction();
  model.F(2, 0, 0, 0) = 7;
  enter("txtPoints(0)", "5");
  dialogs.expectAndType(pathOf("saved"));
  press(Qt::Key_S, Qt::ControlModifier);
  activate();
  EXPECT_EQ(model.F.last()[0], 4);
  item("mnuUndo").trigger();
  EXPECT_EQ(functionValues(), (std::vector<double>{0, 0, 7}));
  EXPECT_EQ(textOf("txtPoints(0)"), "3");
}

TEST_F(Losses, AFitThatAnotherDegreeDropped) {
  openTwoVariables();
  click("cmdCompute");
  const std::string fit = listing();
  const double coefficient = model.Coef(2, 1, 0, 0);
  enter("txtTerms(0)", "1");
  press(Qt::Key_Tab);
  EXPECT_EQ(results().count(), 0);
  undo();
  EXPECT_EQ(listing(), fit);
  EXPECT_TRUE(model.FitDone);
  EXPECT_EQ(model.Coef(2, 1, 0, 0), coefficient);
  redo();
  EXPECT_EQ(results().count(), 0);
  EXPECT_FALSE(model.FitDone);
}

TEST_F(Losses, TheFitOfTheStateThatIsReturnedTo) {
  openTwoVariables();
  click("cmdCompute");
  const std::string first = listing();
  enter("txtTerms(0)", "1");
  press(Qt::Key_Tab);
  click("cmdCompute");
  const std::string second = listing();
  EXPECT_NE(second, first);
  undo();
  EXPECT_EQ(listing(), first);
  redo();
  EXPECT_EQ(listing(), second);
}

TEST_F(Losses, AValueThatWasDeletedWithItsFunctionValuesAndTheFit) {
  openTwoVariables();
  click("cmdCompute");
  const std::string fit = listing();
  const std::vector<double> before = functionValues();
  edit(0);
  clickCell(1);
  clickDelete();
  EXPECT_EQ(column(), (std::vector<std::string>{"0", "1"}));
  EXPECT_EQ(undoText(), "Undo: value 1 of x deleted");
  undo();
  EXPECT_EQ(column(), (std::vector<std::string>{"0", "0.5", "1"}));
  EXPECT_EQ(functionValues(), before);
  EXPECT_EQ(textOf("txtPoints(0)"), "3");
  EXPECT_EQ(listing(), fit);
  expectAgreement();
  redo();
  EXPECT_EQ(column(), (std::vector<std::string>{"0", "1"}));
  EXPECT_EQ(textOf("txtPoints(0)"), "2");
  EXPECT_EQ(results().count(), 0);
  expectAgreement();
}

TEST_F(Losses, TheFitAndTheFileNameThatAnAdditionTook) {
  openTwoVariables();
  click("cmdCompute");
  const std::string fit = listing();
  add(1, "5");
  clickDone();
  EXPECT_EQ(undoText(), "Undo: 5 values added to y");
  EXPECT_EQ(model.FileName, file("FUNCTION"));
  EXPECT_EQ(textOf("txtPoints(1)"), "7");
  undo();
  EXPECT_EQ(model.FileName, file("problem"));
  EXPECT_EQ(textOf("txtPoints(1)"), "2");
  EXPECT_EQ(model.X1, (std::vector<double>{0, 2}));
  EXPECT_EQ(functionValues().size(), 6U);
  EXPECT_EQ(listing(), fit);
  EXPECT_EQ(model.AddCount[1], 0);
  redo();
  EXPECT_EQ(model.FileName, file("FUNCTION"));
  EXPECT_EQ(model.X1.size(), 7U);
  EXPECT_EQ(model.AddCount[1], 5);
}

TEST_F(Losses, TheExtentThatASecondAdditionShortens) {
  openTwoVariables();
  add(0, "1");
  clickDone();
  const std::vector<double> before = functionValues();
  add(1, "1");
  clickDone();
  undo();
  EXPECT_EQ(functionValues(), before);
}

TEST_F(Losses, TypedValuesThatATickReplaced) {
  declareWithFunction();
  edit(0);
  clickCell(1);
  press(Qt::Key_A, Qt::ControlModifier);
  type("0.25");
  clickDone();
  QTest::mouseClick(&check("chkSpaced(0)"), Qt::LeftButton, {}, QPoint(8, check("chkSpaced(0)").height() / 2));
  click("cmdCompute");
  EXPECT_EQ(model.X0, (std::vector<double>{0, 1, 2}));
  EXPECT_EQ(undoText(), "Undo: equal spacing of x");
  undo();
  EXPECT_EQ(model.X0, (std::vector<double>{0, 0.25, 2}));
  EXPECT_FALSE(check("chkSpaced(0)").isChecked());
}

TEST_F(Losses, AVariablesValueTypedInTheFunctionWindowThatComputeReplaced) {
  declareWithFunction();
  review("1");
  QTest::mouseClick(&functionBox("txtVar(0)"), Qt::LeftButton);
  type("0.25");
  clickDone();
  click("cmdCompute");
  EXPECT_EQ(model.X0, (std::vector<double>{0, 1, 2}));
  EXPECT_EQ(undoText(), "Undo: equal spacing of x");
  undo();
  EXPECT_EQ(model.X0, (std::vector<double>{0, 0.25, 2}));
}

TEST_F(Losses, TheNumberOfValuesThatEditValuesFixed) {
  declareWithFunction();
  edit(0);
  clickDone();
  EXPECT_FALSE(box("txtPoints(0)").isEnabled());
  EXPECT_EQ(undoText(), "Undo: edit values of x");
  undo();
  EXPECT_TRUE(box("txtPoints(0)").isEnabled());
  EXPECT_TRUE(check("chkSpaced(0)").isChecked());
  EXPECT_FALSE(model.ValuesGiven[0]);
  redo();
  EXPECT_FALSE(box("txtPoints(0)").isEnabled());
  EXPECT_FALSE(check("chkSpaced(0)").isChecked());
}

TEST_F(Losses, TheNumbersOfValuesThatEditFunctionFixed) {
  declareWithFunction();
  review("0");
  clickDone();
  EXPECT_FALSE(box("txtPoints(0)").isEnabled());
  undo();
  EXPECT_TRUE(box("txtPoints(0)").isEnabled());
}

TEST_F(Losses, AProblemThatTookThePlaceOfWhatWasTyped) {
  type("3");
  openTwoVariables();
  EXPECT_EQ(textOf("txtOrder"), "2");
  undo();
  EXPECT_EQ(textOf("txtOrder"), "3");
}

}  // namespace
}  // namespace tavimor
