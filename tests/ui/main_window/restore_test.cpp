#include <QPlainTextEdit>

#include "support/stored.h"
#include "ui/support/restore_test.h"

namespace tavimor {
namespace {

using testing::HasSubstr;

class Restore : public RestoreTest {};

TEST_F(Restore, BringsBackWhatWasClosedWithoutSaving) {
  typeProblem();
  startAnew();
  EXPECT_THAT(status(), HasSubstr("Restore..."));
  restore("Open a copy", [](QDialog& dialog) {
    const QTreeWidgetItem* one = list(dialog).topLevelItem(0);
    EXPECT_EQ(one->text(0), "not saved yet");
    EXPECT_EQ(one->text(1), "x");
    EXPECT_EQ(one->text(2), "3");
    EXPECT_EQ(one->text(4), "closed without saving");
    EXPECT_TRUE(dialog.findChild<QPlainTextEdit*>("txtPreview")->toPlainText().contains("7.5"));
  });
  EXPECT_EQ(textOf("txtUL(0)"), "4");
  EXPECT_EQ(textOf("txtExpansion(0)"), "*");
  EXPECT_EQ(textOf("txtTerms(0)"), "2");
  EXPECT_EQ(model.F(0, 0, 0, 0), 7.5);
  EXPECT_EQ(model.FileName, "");
  EXPECT_FALSE(item("mnuOpen").isEnabled());
}

TEST_F(Restore, IsUndoneAndDoneAgain) {
  typeProblem();
  startAnew();
  restore();
  EXPECT_EQ(item("mnuUndo").text(), "&Undo: problem restored");
  press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(textOf("txtOrder"), "");
  EXPECT_TRUE(item("mnuOpen").isEnabled());
  press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(textOf("txtUL(0)"), "4");
  EXPECT_EQ(model.F(0, 0, 0, 0), 7.5);
}

TEST_F(Restore, AFieldThatWasBeingTypedHasItsTextAgain) {
  declare("1", "x");
  enter("txtLL(0)", "-");
  startAnew();
  restore();
  EXPECT_EQ(textOf("txtLL(0)"), "-");
  EXPECT_TRUE(box("txtPoints(0)").isEnabled());
}

TEST_F(Restore, NamesThatWereBeingTypedAreThereAgain) {
  type("2");
  press(Qt::Key_Tab);
  type("temperature,pre");
  startAnew();
  restore("Open a copy", [](QDialog& dialog) {
    const QTreeWidgetItem* one = list(dialog).topLevelItem(0);
    EXPECT_EQ(one->text(1), "temperature,pre");
    EXPECT_EQ(one->text(2), "");
    EXPECT_TRUE(dialog.findChild<QPlainTextEdit*>("txtPreview")->toPlainText().contains("temperature,pre"));
  });
  EXPECT_EQ(textOf("txtOrder"), "2");
  EXPECT_FALSE(box("txtOrder").isEnabled());
  EXPECT_EQ(focusName(), "txtVarNams");
  press(Qt::Key_End);
  type("ssure");
  press(Qt::Key_Tab);
  EXPECT_EQ(model.VarName[1], "pressure");
  EXPECT_EQ(focusName(), "txtLL(0)");
}

TEST_F(Restore, ANumberOfVariablesAloneIsNoWork) {
  type("2");
  press(Qt::Key_Tab);
  startAnew();
  EXPECT_EQ(keptFiles(), QStringList());
}

TEST_F(Restore, WhatIsTypedIsKeptByItself) {
  typeProblem();
  EXPECT_TRUE(QTest::qWaitFor([] { return keptFiles().contains("problem.dat"); }));
}

TEST_F(Restore, WhatIsRestoredIsKeptByTheNewSessionAlone) {
  typeProblem();
  startAnew();
  restore();
  const QString earlier = keptFolder();
  EXPECT_TRUE(QTest::qWaitFor([&] { return keptFolder() != earlier && keptFiles().count("problem.dat") == 1; }));
  startAnew();
  restore("Close", [](QDialog& dialog) { EXPECT_EQ(list(dialog).topLevelItemCount(), 1); });
}

TEST_F(Restore, WhatWasSavedLeavesNothing) {
  typeProblem();
  dialogs.expectAndType(pathOf("saved"));
  press(Qt::Key_S, Qt::ControlModifier);
  startAnew();
  EXPECT_EQ(status(), "");
  EXPECT_EQ(keptFiles(), QStringList());
}

TEST_F(Restore, WhatWasOpenedAndComputedOnlyLeavesNothing) {
  test::store(twoVariables(), file("problem"));
  open("problem");
  click("cmdCompute");
  startAnew();
  EXPECT_EQ(keptFiles(), QStringList());
}

TEST_F(Restore, AChangeOfAnOpenedProblemIsKeptUnderItsName) {
  test::store(twoVariables(), file("problem"));
  open("problem");
  enter("txtUL(0)", "9");
  startAnew();
  restore("Open a copy", [](QDialog& dialog) { EXPECT_EQ(list(dialog).topLevelItem(0)->text(0), "problem"); });
  EXPECT_EQ(textOf("txtUL(0)"), "9");
  EXPECT_EQ(model.FileName, "");
}

TEST_F(Restore, AnErrorsEndIsTold) {
  typeProblem();
  window->keepForRestore(SessionEnd::RunTimeError);
  EXPECT_TRUE(keptFiles().contains("end"));
}

TEST_F(Restore, RemovesWhatIsNotWanted) {
  typeProblem();
  startAnew();
  dialogs.expect([](QDialog& dialog) {
    QTest::mouseClick(dialog.findChild<QPushButton*>("cmdRemove"), Qt::LeftButton);
    EXPECT_EQ(list(dialog).topLevelItemCount(), 0);
    EXPECT_FALSE(dialog.findChild<QPushButton*>("cmdOpen")->isEnabled());
    QTest::mouseClick(dialog.findChild<QPushButton*>("cmdClose"), Qt::LeftButton);
  });
  item("mnuRestore").trigger();
  EXPECT_EQ(keptFiles().filter("problem"), QStringList());
}

TEST_F(Restore, AWindowThatHasItsProblemOpensIntoANewOne) {
  typeProblem();
  startAnew();
  declare("1", "y");
  restore("Close", [](QDialog& dialog) {
    EXPECT_EQ(dialog.findChild<QPushButton*>("cmdOpen")->text(), "&Open a copy in a new window");
  });
}

}  // namespace
}  // namespace tavimor
