#include <gtest/gtest.h>

#include <QDir>
#include <QTimer>
#include <csignal>

#include "formats/problem_reader.h"
#include "support/stored.h"
#include "ui/controls/application.h"
#include "ui/controls/polite_end.h"
#include "ui/support/main_window_test.h"

namespace tavimor {
namespace {

class Save : public MainWindowTest {
 protected:
  void saveByKey() { press(Qt::Key_S, Qt::ControlModifier); }
  void saveAsByKey() { press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier); }
};

TEST_F(Save, OfANewProblemAsksForTheNameAndWritesBothFiles) {
  declare("1", "x");
  specify(0, "-1", "2", "3", "1");
  dialogs.expectAndType(pathOf("new"));
  saveByKey();
  EXPECT_EQ(contentOf("new"), " 0 \r\n\"x\",-1,2,.5,#TRUE#,0,1\r\n#FALSE#\r\n");
  EXPECT_EQ(contentOf("new.dat"), " 0 \r\n 2 \r\n#TRUE#\r\n-1 \r\n .5 \r\n 2 \r\n 0 \r\n 0 \r\n 0 \r\n");
  EXPECT_EQ(model.FileName, file("new"));
}

TEST_F(Save, OfAProblemWithANameAsksNothing) {
  test::store(twoVariables(), file("problem"));
  open("problem");
  enter("txtUL(0)", "5");
  saveByKey();
  const Dimension saved = test::stored(file("problem"));
  EXPECT_EQ(saved.UpperLimit[0], 5);
  EXPECT_TRUE(saved.PeriodFlag[0]);
}

TEST_F(Save, CalledOffWritesNothing) {
  declare("1", "x");
  dialogs.expectAndCancel();
  saveByKey();
  EXPECT_EQ(model.FileName, "");
  EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

TEST_F(Save, AsAlwaysAsksAndTakesTheNewName) {
  test::store(twoVariables(), file("problem"));
  open("problem");
  dialogs.expectAndType(pathOf("other"));
  saveAsByKey();
  EXPECT_EQ(model.FileName, file("other"));
  EXPECT_EQ(contentOf("other.dat"), contentOf("problem.dat"));
}

TEST_F(Save, AsCalledOffWritesUnderTheNameOfTheDialogBefore) {
  declare("1", "x");
  dialogs.expectAndType(pathOf("new"));
  saveByKey();
  activate();
  enter("txtUL(0)", "5");
  dialogs.expectAndCancel();
  saveAsByKey();
  EXPECT_TRUE(contentOf("new").contains("\"x\",0,5,2.5"));
}

// What comes from outside while the user is asked for the name.
struct Ending {
  const char* name;
  void (*come)();
};

class SaveAtTheEnd : public Save, public testing::WithParamInterface<Ending> {
 protected:
  ~SaveAtTheEnd() override { std::signal(SIGTERM, SIG_DFL); }
};

TEST_P(SaveAtTheEnd, WritesNothing) {
  test::store(twoVariables(), file("problem"));
  open("problem");
  const QByteArray before = contentOf("problem");
  enter("txtUL(0)", "5");
  unloadOnEndRequest(*window);
  dialogs.expect([](QDialog&) { GetParam().come(); });
  QTimer::singleShot(0, window, [this] { saveAsByKey(); });
  EXPECT_EQ(QApplication::exec(), 0);
  EXPECT_EQ(contentOf("problem"), before);
  EXPECT_TRUE(Form::openForms().isEmpty());
}

INSTANTIATE_TEST_SUITE_P(FromOutside, SaveAtTheEnd,
                         testing::Values(Ending{"Request", [] { std::raise(SIGTERM); }},
                                         Ending{"EndOfSession", [] { QCoreApplication::quit(); }}),
                         [](const auto& param) { return param.param.name; });

TEST_F(Save, AsAsksBeforeItReplacesAPair) {
  test::store(twoVariables(), file("problem"));
  declare("1", "x");
  dialogs.expectAndType(pathOf("problem"));
  dialogs.expectAndPress("No");
  dialogs.expectAndCancel();
  saveAsByKey();
  EXPECT_TRUE(contentOf("problem").startsWith(" 1 "));
  EXPECT_EQ(model.FileName, "");
}

TEST_F(Save, NeverReplacesUnaskedAFileThatCouldNotBeOpened) {
  writeFile("letter", "Dear Sir");
  dialogs.expectAndType(pathOf("letter"));
  dialogs.expectAndPress("OK");
  press(Qt::Key_O, Qt::ControlModifier);
  activate();
  declare("1", "x");
  dialogs.expectAndCancel();
  saveByKey();
  EXPECT_EQ(contentOf("letter"), "Dear Sir");
}

TEST_F(Save, AfterAnAdditionGoesToTheWorkFile) {
  test::store(twoVariables(), file("problem"));
  open("problem");
  const QByteArray before = contentOf("problem");
  dialogs.expectAndType("1");
  click("cmdAddVars(1)");
  clickDone();
  saveByKey();
  EXPECT_EQ(contentOf("problem"), before);
  EXPECT_TRUE(contentOf("FUNCTION").startsWith(" 1 "));
  EXPECT_TRUE(contentOf("FUNCTION.dat").startsWith(" 1 "));
}

TEST_F(Save, OfAFitWritesItAndItOpensAgain) {
  test::store(twoVariables(), file("problem"));
  open("problem");
  click("cmdCompute");
  saveByKey();
  const Dimension saved = test::stored(file("problem"));
  EXPECT_TRUE(saved.FitDone);
  EXPECT_NEAR(saved.Coef(2, 0, 0, 0), 3, 1e-12);
  EXPECT_EQ(saved.NumGridPoints, 6);
}

TEST_F(Save, InTheMiddleOfAnEntryLaysTheTablesOutForIt) {
  declare("1", "x");
  specify(0, "0", "1", "3", "1");
  click("cmdCompute");
  enter("txtPoints(0)", "5");
  dialogs.expectAndType(pathOf("new"));
  saveByKey();
  EXPECT_FALSE(model.FitDone);
  const Dimension saved = test::stored(file("new"));
  EXPECT_EQ(saved.LastPoint[0], 4);
  EXPECT_EQ(saved.X0, (std::vector<double>{0, 0.25, 0.5, 0.75, 1}));
}

TEST_F(Save, ThatTheSystemRefusesIsARunTimeError) {
  Application& application = *static_cast<Application*>(qApp);
  std::vector<int> endedWith;
  application.setEnding([&](int exitCode) { endedWith.push_back(exitCode); });
  declare("1", "x");
  QString text;
  dialogs.expectAndType(pathOf("missing/new"));
  dialogs.expectAndPress("End", &text);
  saveByKey();
  EXPECT_EQ(text.toStdString(), "Run-time error '76':\n\nPath not found\n" + file("missing/new.dat"));
  EXPECT_EQ(endedWith, std::vector<int>{1});
  application.setEnding([](int) {});
}

}  // namespace
}  // namespace tavimor
