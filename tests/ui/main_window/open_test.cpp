#include <gtest/gtest.h>

#include <QFile>

#include "engine/Compute.h"
#include "support/stored.h"
#include "ui/support/main_window_test.h"

namespace tavimor {
namespace {

class Open : public MainWindowTest {
 protected:
  void writeFitted(const QString& name) {
    Dimension problem = twoVariables();
    problem.NumGridPoints = 6;
    Compute(problem, [](const std::string&) {});
    ASSERT_TRUE(problem.FitDone);
    test::store(problem, file(name));
  }

  void expectStart() {
    EXPECT_TRUE(box("txtOrder").isEnabled());
    EXPECT_TRUE(box("txtVarNams").isEnabled());
    EXPECT_TRUE(box("txtPoints(0)").isEnabledTo(window->findChild<QWidget*>("fraSpecs")));
    EXPECT_TRUE(item("mnuOpen").isEnabled());
    EXPECT_FALSE(item("mnuSave").isEnabled());
    EXPECT_FALSE(box("txtLL(0)").isEnabled());
    EXPECT_EQ(window->findChild<QLineEdit*>("txtLL(1)"), nullptr);
    EXPECT_FALSE(model.LoadingFile);
    EXPECT_EQ(model.FileName, "");
  }
};

TEST_F(Open, ShowsTheSpecifications) {
  test::store(twoVariables(), file("problem"));
  open("problem");
  EXPECT_EQ(textOf("txtOrder"), "2");
  EXPECT_EQ(textOf("txtVarNams"), "x,y");
  EXPECT_EQ(label("lblVar(1)").text(), "y");
  EXPECT_EQ(textOf("txtLL(0)"), "0");
  EXPECT_EQ(textOf("txtUL(1)"), "2");
  EXPECT_EQ(textOf("txtTerms(0)"), "2");
  EXPECT_EQ(textOf("txtPoints(0)"), "3");
  EXPECT_EQ(textOf("txtExpansion(0)"), ".5");
  EXPECT_TRUE(check("chkSpaced(0)").isChecked());
  EXPECT_FALSE(check("chkSpaced(1)").isChecked());
  EXPECT_EQ(model.FileName, file("problem"));
}

TEST_F(Open, FillsTheModel) {
  test::store(twoVariables(), file("problem"));
  open("problem");
  const Dimension written = twoVariables();
  EXPECT_EQ(model.LastPoint, written.LastPoint);
  EXPECT_EQ(model.X1, written.X1);
  EXPECT_EQ(model.F(2, 1, 0, 0), written.F(2, 1, 0, 0));
  EXPECT_EQ(model.F.last(), written.F.last());
  EXPECT_FALSE(model.LoadingFile);
}

TEST_F(Open, WithoutAFitBringsTheNamesGivenState) {
  test::store(twoVariables(), file("problem"));
  open("problem");
  EXPECT_FALSE(box("txtOrder").isEnabled());
  EXPECT_FALSE(box("txtVarNams").isEnabled());
  EXPECT_FALSE(item("mnuOpen").isEnabled());
  for (const char* name : {"mnuSave", "mnuSaveAs", "mnuPrint"}) EXPECT_TRUE(item(name).isEnabled()) << name;
  EXPECT_TRUE(item("mnuAbout").isVisible());
  EXPECT_TRUE(button("cmdCompute").isEnabled());
  EXPECT_FALSE(button("cmdEvaluations").isEnabled());
  EXPECT_EQ(results().count(), 0);
  EXPECT_EQ(focusName(), "txtLL(0)");
}

TEST_F(Open, WithAFitListsItAndEnablesTheEvaluations) {
  writeFitted("fitted");
  open("fitted");
  EXPECT_TRUE(model.FitDone);
  EXPECT_EQ(listing(), engineListing(model));
  EXPECT_TRUE(button("cmdEvaluations").isEnabled());
}

TEST_F(Open, DisablesTheNumberOfValuesOfEveryVariable) {
  test::store(twoVariables(), file("problem"));
  open("problem");
  EXPECT_FALSE(box("txtPoints(0)").isEnabled());
  EXPECT_FALSE(box("txtPoints(1)").isEnabled());
}

TEST_F(Open, AStarStaysAndGivesTheMiddle) {
  writeFile("stars", " 0 \r\n\"x\",1,4,\"*\",#FALSE#,\"*\",1\r\n#FALSE#\r\n");
  writeFile("stars.dat", " 0 \r\n 1 \r\n#TRUE#\r\n 1 \r\n 4 \r\n 5 \r\n 6 \r\n");
  open("stars");
  EXPECT_EQ(textOf("txtExpansion(0)"), "*");
  EXPECT_EQ(model.Centre[0], 2.5);
  EXPECT_EQ(model.Period[0], 2 * model.Pi);
}

TEST_F(Open, CalledOffTheFirstTimeChangesNothing) {
  dialogs.expectAndCancel();
  press(Qt::Key_O, Qt::ControlModifier);
  expectStart();
}

TEST_F(Open, ABrokenFileIsReportedAndLeavesEverything) {
  test::store(twoVariables(), file("broken"));
  writeFile("broken.dat", " 1 \r\n two \r\n");
  type("3");
  QString reason;
  dialogs.expectAndType(pathOf("broken"));
  dialogs.expectAndPress("OK", &reason);
  press(Qt::Key_O, Qt::ControlModifier);
  for (const QString& part : {pathOf("broken.dat"), QString("line 2"), QString("expected"), QString("found \"two")})
    EXPECT_TRUE(reason.contains(part)) << reason.toStdString();
  activate();
  expectStart();
  EXPECT_EQ(textOf("txtOrder"), "3");
  EXPECT_EQ(focusName(), "txtOrder");
}

TEST_F(Open, AfterABrokenFileAGoodOneOpens) {
  writeFile("broken", "nonsense");
  dialogs.expectAndType(pathOf("broken"));
  dialogs.expectAndPress("OK");
  press(Qt::Key_O, Qt::ControlModifier);
  activate();
  writeFitted("fitted");
  open("fitted");
  EXPECT_TRUE(model.FitDone);
}

TEST_F(Open, ALaterOneThatIsCalledOffOpensThePreviousFile) {
  writeFile("problem", "nonsense");
  dialogs.expectAndType(pathOf("problem"));
  dialogs.expectAndPress("OK");
  press(Qt::Key_O, Qt::ControlModifier);
  activate();
  QFile::remove(pathOf("problem"));
  writeFitted("problem");
  dialogs.expectAndCancel();
  press(Qt::Key_O, Qt::ControlModifier);
  EXPECT_TRUE(model.FitDone);
}

TEST_F(Open, AMissingFileOfTheCommandLineIsReported) {
  QString reason;
  dialogs.expectAndPress("OK", &reason);
  window->openFile(file("nowhere"));
  EXPECT_TRUE(reason.contains(pathOf("nowhere"))) << reason.toStdString();
  EXPECT_TRUE(reason.contains("File not found")) << reason.toStdString();
  expectStart();
}

TEST_F(Open, TheFieldsThatItFillsDoNotDropTheFit) {
  writeFitted("fitted");
  open("fitted");
  QTest::mouseClick(&box("txtTerms(0)"), Qt::LeftButton);
  press(Qt::Key_Tab);
  EXPECT_TRUE(model.FitDone);
}

TEST_F(Open, FromTheMenuByLettersWorksToo) {
  test::store(twoVariables(), file("problem"));
  dialogs.expectAndType(pathOf("problem"));
  press(Qt::Key_F, Qt::AltModifier);
  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_O);
  EXPECT_EQ(textOf("txtOrder"), "2");
}

}  // namespace
}  // namespace tavimor
