#include <gtest/gtest.h>

#include "support/stored.h"
#include "ui/undo/undo_test.h"

namespace tavimor {
namespace {

class Undo : public UndoTest {};

TEST_F(Undo, AtTheStartThereIsNothingToUndo) {
  EXPECT_EQ(undoText(), "Undo");
  EXPECT_EQ(redoText(), "Redo");
  EXPECT_FALSE(item("mnuUndo").isEnabled());
  EXPECT_FALSE(item("mnuRedo").isEnabled());
  EXPECT_EQ(item("mnuUndo").shortcut(), QKeySequence("Ctrl+Z"));
  EXPECT_EQ(item("mnuRedo").shortcut(), QKeySequence("Ctrl+Shift+Z"));
}

TEST_F(Undo, TheNamesCanBeTypedAnew) {
  declare("2", "x,y");
  EXPECT_EQ(undoText(), "Undo: names");
  undo();
  EXPECT_TRUE(box("txtVarNams").isEnabled());
  EXPECT_EQ(focusName(), "txtVarNams");
  EXPECT_EQ(textOf("txtVarNams"), "");
  EXPECT_FALSE(box("txtLL(0)").isEnabled());
  EXPECT_FALSE(item("mnuSave").isEnabled());
  EXPECT_FALSE(item("mnuAbout").isVisible());
  EXPECT_EQ(redoText(), "Redo: names");
  type("a,b");
  press(Qt::Key_Tab);
  EXPECT_EQ(model.VarName[0], "a");
  EXPECT_EQ(focusName(), "txtLL(0)");
  EXPECT_EQ(label("lblVar(0)").text(), "a");
}

TEST_F(Undo, TheNumberOfVariablesCanBeTypedAnew) {
  declare("2", "x,y");
  undo(2);
  EXPECT_EQ(focusName(), "txtOrder");
  EXPECT_EQ(textOf("txtOrder"), "");
  EXPECT_TRUE(item("mnuOpen").isEnabled());
  EXPECT_FALSE(item("mnuUndo").isEnabled());
  declare("3", "x,y,z");
  EXPECT_EQ(model.LastVar, 2);
  click("cmdPrevVar");
  EXPECT_EQ(focusName(), "txtLL(2)");
  EXPECT_EQ(textOf("txtPoints(2)"), "2");
}

TEST_F(Undo, NumberAndNamesAreDoneAgain) {
  declare("2", "x,y");
  undo(2);
  redo(2);
  EXPECT_EQ(model.LastVar, 1);
  EXPECT_EQ(model.VarName[1], "y");
  EXPECT_EQ(textOf("txtVarNams"), "x,y");
  EXPECT_FALSE(box("txtOrder").isEnabled());
  EXPECT_FALSE(box("txtVarNams").isEnabled());
  EXPECT_TRUE(box("txtLL(0)").isEnabled());
  EXPECT_EQ(focusName(), "txtLL(0)");
  EXPECT_TRUE(item("mnuSave").isEnabled());
}

struct FieldCase {
  const char* name;
  const char* field;
  const char* text;
  const char* step;
};
void PrintTo(const FieldCase& entry, std::ostream* stream) { *stream << entry.field << " \"" << entry.text << '"'; }

class UndoOfAField : public UndoTest, public testing::WithParamInterface<FieldCase> {};

TEST_P(UndoOfAField, BringsTheTextBackAndForth) {
  const auto& [name, field, text, step] = GetParam();
  declare("2", "x,y");
  const std::string before = textOf(field);
  enter(field, text);
  press(Qt::Key_Tab);
  EXPECT_EQ(undoText(), std::string("Undo: ") + step);
  undo();
  EXPECT_EQ(textOf(field), before);
  EXPECT_EQ(undoText(), "Undo: names");
  EXPECT_EQ(hint(), std::string("Undone: ") + step);
  redo();
  EXPECT_EQ(textOf(field), text);
  EXPECT_EQ(redoText(), "Redo");
}

INSTANTIATE_TEST_SUITE_P(All, UndoOfAField,
                         testing::Values(FieldCase{"LowerLimit", "txtLL(0)", "-1", "lower limit of x"},
                                         FieldCase{"UpperLimit", "txtUL(0)", "7", "upper limit of x"},
                                         FieldCase{"Points", "txtPoints(0)", "6", "number of values of x 2 -> 6"},
                                         FieldCase{"Degree", "txtTerms(0)", "0", "degree of x"},
                                         FieldCase{"Centre", "txtExpansion(0)", "0.5", "centre of x"}),
                         [](const auto& param) { return param.param.name; });

TEST_F(Undo, AFieldThatIsBeingTypedInUndoesItsOwnFirst) {
  declare("1", "x");
  enter("txtUL(0)", "5");
  press(Qt::Key_Tab);
  enter("txtLL(0)", "3");
  undo();
  EXPECT_EQ(textOf("txtLL(0)"), "0");
  EXPECT_EQ(textOf("txtUL(0)"), "5");
  undo();
  EXPECT_EQ(textOf("txtUL(0)"), "1");
}

TEST_F(Undo, WhatWasTypedInAFieldIsNoLongerItsOwnOnceItWasLeft) {
  declare("1", "x");
  enter("txtLL(0)", "3");
  press(Qt::Key_Tab);
  press(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(focusName(), "txtLL(0)");
  undo();
  EXPECT_EQ(textOf("txtLL(0)"), "0");
  EXPECT_EQ(undoText(), "Undo: names");
}

TEST_F(Undo, ATextThatIsNotLeftYetIsUndoneByTheMenu) {
  declare("1", "x");
  enter("txtLL(0)", "3");
  EXPECT_EQ(undoText(), "Undo: lower limit of x");
  item("mnuUndo").trigger();
  EXPECT_EQ(textOf("txtLL(0)"), "0");
  item("mnuRedo").trigger();
  EXPECT_EQ(textOf("txtLL(0)"), "3");
}

TEST_F(Undo, TheTickIsAStep) {
  declare("1", "x");
  QTest::mouseClick(&check("chkSpaced(0)"), Qt::LeftButton, {}, QPoint(8, check("chkSpaced(0)").height() / 2));
  EXPECT_FALSE(check("chkSpaced(0)").isChecked());
  EXPECT_EQ(undoText(), "Undo: equal spacing of x");
  undo();
  EXPECT_TRUE(check("chkSpaced(0)").isChecked());
}

TEST_F(Undo, TheBlockOfTheChangeComesOnScreen) {
  declare("2", "x,y");
  enter("txtUL(0)", "5");
  click("cmdNextVar");
  EXPECT_EQ(model.CurVar, 2);
  undo();
  EXPECT_EQ(model.CurVar, 1);
  EXPECT_EQ(focusName(), "txtLL(0)");
  EXPECT_EQ(label("lblBlock").text(), "block 1 of 2");
}

TEST_F(Undo, AfterItAFieldMeasuresChangesAgainstWhatItShowsNow) {
  declare("1", "x");
  specify(0, "0", "1", "4", "2");
  click("cmdCompute");
  const std::string fit = listing();
  enter("txtTerms(0)", "1");
  press(Qt::Key_Tab);
  EXPECT_EQ(results().count(), 0);
  undo();
  EXPECT_EQ(listing(), fit);
  enter("txtTerms(0)", "2");
  press(Qt::Key_Tab);
  EXPECT_EQ(listing(), fit);
}

TEST_F(Undo, AChangeAfterItEndsTheRedo) {
  declare("1", "x");
  enter("txtLL(0)", "3");
  press(Qt::Key_Tab);
  undo();
  enter("txtUL(0)", "4");
  press(Qt::Key_Tab);
  EXPECT_FALSE(item("mnuRedo").isEnabled());
}

TEST_F(Undo, ANameWithAnAmpersandIsShownAsItIs) {
  declare("1", "R&D");
  enter("txtUL(0)", "4");
  press(Qt::Key_Tab);
  EXPECT_EQ(item("mnuUndo").text(), "&Undo: upper limit of R&&D");
}

TEST_F(Undo, AnOpenedProblemGoesAndComesBack) {
  openTwoVariables();
  EXPECT_EQ(undoText(), "Undo: problem opened");
  undo();
  EXPECT_EQ(focusName(), "txtOrder");
  EXPECT_EQ(textOf("txtOrder"), "");
  EXPECT_EQ(model.FileName, "");
  EXPECT_TRUE(item("mnuOpen").isEnabled());
  EXPECT_EQ(label("lblFileName").text(), "no file");
  redo();
  EXPECT_EQ(model.FileName, file("problem"));
  EXPECT_EQ(model.F.data()[5], twoVariables().F.data()[5]);
  EXPECT_EQ(textOf("txtVarNams"), "x,y");
  EXPECT_EQ(textOf("txtExpansion(1)"), "1");
  EXPECT_FALSE(box("txtPoints(0)").isEnabled());
  EXPECT_EQ(label("lblFileName").text(), "problem");
}

TEST_F(Undo, AfterAnOpenedProblemAnotherOneCanBeOpened) {
  openTwoVariables();
  undo();
  Dimension other = twoVariables();
  other.VarName[0] = "other";
  test::store(other, file("second"));
  open("second");
  EXPECT_EQ(model.VarName[0], "other");
  EXPECT_EQ(model.FileName, file("second"));
}

TEST_F(Undo, WhatIsSavedAfterItIsTheProblemAsItIsShown) {
  openTwoVariables();
  enter("txtUL(0)", "9");
  press(Qt::Key_Tab);
  undo();
  press(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(test::stored(file("problem")).UpperLimit[0], 1);
}

class Unsaved : public UndoTest {
 protected:
  std::string fileName() { return label("lblFileName").text().toStdString(); }
};

TEST_F(Unsaved, IsWhatWasTypedSinceTheLastSave) {
  openTwoVariables();
  EXPECT_EQ(fileName(), "problem");
  EXPECT_FALSE(window->hasUnsavedChanges());
  enter("txtUL(0)", "9");
  EXPECT_EQ(fileName(), "problem *") << "not left yet";
  press(Qt::Key_Tab);
  EXPECT_TRUE(window->hasUnsavedChanges());
  press(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(fileName(), "problem");
  EXPECT_FALSE(window->hasUnsavedChanges());
}

TEST_F(Unsaved, GoesWithTheUndoAndComesBackWithTheRedo) {
  openTwoVariables();
  enter("txtUL(0)", "9");
  press(Qt::Key_Tab);
  undo();
  EXPECT_EQ(fileName(), "problem");
  redo();
  EXPECT_EQ(fileName(), "problem *");
}

TEST_F(Unsaved, ThereIsNothingBeforeThereIsAProblem) {
  type("2");
  press(Qt::Key_Tab);
  EXPECT_FALSE(window->hasUnsavedChanges());
  EXPECT_EQ(fileName(), "no file");
  type("x,y");
  press(Qt::Key_Tab);
  EXPECT_TRUE(window->hasUnsavedChanges());
  EXPECT_EQ(fileName(), "no file *");
}

TEST_F(Unsaved, AFitIsNothingTyped) {
  openTwoVariables();
  click("cmdCompute");
  EXPECT_FALSE(window->hasUnsavedChanges());
}

}  // namespace
}  // namespace tavimor
