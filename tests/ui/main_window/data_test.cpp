#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include "support/stored.h"
#include "ui/controls/application.h"
#include "ui/support/main_window_test.h"

namespace tavimor {
namespace {

class EditValues : public MainWindowTest {
 protected:
  EditValues() {
    declare("2", "x,y");
    specify(0, "0", "3", "4", "1");
  }
};

TEST_F(EditValues, GeneratesThemTheFirstTimeAndFixesTheirNumber) {
  click("cmdEditVars(0)");
  EXPECT_EQ(model.X0, (std::vector<double>{0, 1, 2, 3}));
  EXPECT_TRUE(model.ValuesGiven[0]);
  EXPECT_FALSE(box("txtPoints(0)").isEnabled());
  EXPECT_EQ(model.V, 0);
}

TEST_F(EditValues, UnchecksTheSpacingOfThatVariableOnly) {
  click("cmdEditVars(0)");
  EXPECT_FALSE(check("chkSpaced(0)").isChecked());
  EXPECT_TRUE(check("chkSpaced(1)").isChecked());
}

TEST_F(EditValues, KeepsValuesThatWereTyped) {
  click("cmdEditVars(0)");
  model.VarX = 1.25;
  window->SetVarX(0, 1);
  clickDone();
  click("cmdEditVars(0)");
  EXPECT_EQ(model.X0, (std::vector<double>{0, 1.25, 2, 3}));
}

class AddValuesButton : public MainWindowTest {
 protected:
  AddValuesButton() {
    test::store(twoVariables(), file("problem"));
    open("problem");
  }
};

TEST_F(AddValuesButton, AsksHowMany) {
  dialogs.expect([](QDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Add values for variable x");
    EXPECT_EQ(dialog.findChild<QLabel*>()->text(), "How many additional values for variable x?");
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  click("cmdAddVars(0)");
}

TEST_F(AddValuesButton, CalledOffOnlyUnchecksTheSpacing) {
  const std::string fileName = model.FileName;
  dialogs.expectAndCancel();
  click("cmdAddVars(0)");
  EXPECT_FALSE(check("chkSpaced(0)").isChecked());
  EXPECT_EQ(model.LastPoint[0], 2);
  EXPECT_EQ(model.F.last(), twoVariables().F.last());
  EXPECT_EQ(model.FileName, fileName);
}

TEST_F(AddValuesButton, ZeroAndAWordChangeNothing) {
  for (const char* answer : {"0", "abc", "0.5"}) {
    dialogs.expectAndType(answer);
    click("cmdAddVars(0)");
    EXPECT_EQ(model.LastPoint[0], 2) << answer;
    activate();
  }
}

TEST_F(AddValuesButton, KeepsTheOldEntriesWhereTheyWere) {
  dialogs.expectAndType("2");
  click("cmdAddVars(0)");
  EXPECT_EQ(model.F.last(), (PerVariable<Long>{4, 1}));
  const Dimension before = twoVariables();
  for (Long i = 0; i <= 4; ++i)
    for (Long j = 0; j <= 1; ++j) EXPECT_EQ(model.F(i, j, 0, 0), i <= 2 ? before.F(i, j, 0, 0) : 0) << i << "," << j;
  EXPECT_EQ(model.X0, (std::vector<double>{0, 0.5, 1, 0, 0}));
  EXPECT_EQ(textOf("txtPoints(0)"), "5");
}

TEST_F(AddValuesButton, LeavesTheWorkFilesNameAndNoWorkFile) {
  dialogs.expectAndType("1");
  click("cmdAddVars(0)");
  EXPECT_EQ(model.FileName, file("FUNCTION"));
  EXPECT_FALSE(QFile::exists(pathOf("FUNCTION")));
}

class AddToNewProblem : public MainWindowTest {};

TEST_F(AddToNewProblem, GeneratesTheValuesFirstAndAddsZeros) {
  declare("1", "x");
  specify(0, "1", "2", "2", "1");
  dialogs.expectAndType("2");
  click("cmdAddVars(0)");
  EXPECT_EQ(model.X0, (std::vector<double>{1, 2, 0, 0}));
  EXPECT_FALSE(box("txtPoints(0)").isEnabled());
}

TEST_F(AddToNewProblem, AWorkFileThatCannotBeIsToldBeforeAnythingChanges) {
  Application& application = *static_cast<Application*>(qApp);
  application.setEnding([](int) {});
  declare("1", "x");
  specify(0, "1", "2", "2", "1");
  QDir(folder.path()).mkdir("FUNCTION");
  QString text;
  dialogs.expectAndType("2");
  dialogs.expectAndPress("End", &text);
  click("cmdAddVars(0)");
  EXPECT_TRUE(text.startsWith("Run-time error '75'")) << text.toStdString();
  EXPECT_TRUE(box("txtPoints(0)").isEnabled());
  EXPECT_FALSE(model.ValuesGiven[0]);
  EXPECT_EQ(textOf("txtPoints(0)"), "2");
}

class EditFunction : public MainWindowTest {
 protected:
  EditFunction() {
    declare("2", "x,y");
    specify(0, "0", "2", "3", "1");
    click("cmdNextVar");
    specify(1, "0", "1", "2", "1");
  }
};

TEST_F(EditFunction, AsksForTheStartingSet) {
  dialogs.expect([](QDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Review of function");
    EXPECT_EQ(dialog.findChild<QLabel*>()->text(), "Enter indices of starting set, separated by commas:");
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  click("cmdEditFun");
}

TEST_F(EditFunction, CalledOffOrEmptyChangesNothing) {
  dialogs.expectAndCancel();
  click("cmdEditFun");
  EXPECT_TRUE(box("txtPoints(0)").isEnabled());
  EXPECT_FALSE(model.ValuesGiven[0]);
}

TEST_F(EditFunction, StartsAtTheGivenIndicesWithAllValuesGiven) {
  dialogs.expectAndType("2,1");
  click("cmdEditFun");
  EXPECT_EQ(model.StartIdx, (PerVariable<Long>{2, 1}));
  EXPECT_EQ(model.ValuesGiven, (PerVariable<bool>{true, true}));
  EXPECT_EQ(model.X0, (std::vector<double>{0, 1, 2}));
  EXPECT_EQ(model.X1, (std::vector<double>{0, 1}));
}

TEST_F(EditFunction, RoundsTheIndicesAndReadsTheLeadingNumber) {
  dialogs.expectAndType("1.5,x");
  click("cmdEditFun");
  EXPECT_EQ(model.StartIdx, (PerVariable<Long>{2, 0}));
}

TEST_F(EditFunction, AsksAgainWhileAnIndexIsBeyondTheLast) {
  dialogs.expectAndType("3,0");
  dialogs.expectAndType("0,2");
  dialogs.expectAndType("1,1");
  click("cmdEditFun");
  EXPECT_EQ(model.StartIdx, (PerVariable<Long>{1, 1}));
}

TEST_F(EditFunction, TooFewIndicesAreARunTimeError) {
  Application& application = *static_cast<Application*>(qApp);
  std::vector<int> endedWith;
  application.setEnding([&](int exitCode) { endedWith.push_back(exitCode); });
  QString text;
  dialogs.expectAndType("1");
  dialogs.expectAndPress("End", &text);
  click("cmdEditFun");
  EXPECT_EQ(text, "Run-time error '9':\n\nSubscript out of range");
  EXPECT_EQ(endedWith, std::vector<int>{1});
  application.setEnding([](int) {});
}

}  // namespace
}  // namespace tavimor
