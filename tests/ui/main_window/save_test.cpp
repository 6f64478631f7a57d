#include <gtest/gtest.h>

#include <QDir>
#include <QTimer>
#include <csignal>

#include "formats/problem_reader.h"
#include "platform/end_request.h"
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
void PrintTo(const Ending& ending, std::ostream* stream) { *stream << ending.name; }

class SaveAtTheEnd : public Save, public testing::WithParamInterface<Ending> {
 protected:
  ~SaveAtTheEnd() override {
    watchEndRequests();  // forgets the request
    std::signal(SIGTERM, SIG_DFL);
  }
};

TEST_P(SaveAtTheEnd, WritesNothing) {
  test::store(twoVariables(), file("problem"));
  open("problem");
  const QByteArray before = contentOf("problem");
  enter("txtUL(0)", "5");
  unloadOnEndRequest(*window, watchEndRequests());
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

TEST_F(Save, NeverReplacesAFileThatIsNoProblem) {
  writeFile("letter", "Dear Sir");
  declare("1", "x");
  QString text;
  dialogs.expectAndType(pathOf("letter"));
  dialogs.expectAndPress("OK", &text);
  dialogs.expectAndType(pathOf("problem"));
  saveByKey();
  EXPECT_EQ(text.toStdString(),
            "Not saved: the file is there already and is not the specification of a problem\n" + file("letter"));
  EXPECT_EQ(contentOf("letter"), "Dear Sir");
  EXPECT_TRUE(contentOf("problem").startsWith(" 0 "));
}

TEST_F(Save, ToANameThatAnotherKindOfFileHasGotSinceIsRefusedAndTheUserGoesOn) {
  declare("1", "x");
  dialogs.expectAndType(pathOf("problem"));
  saveByKey();
  activate();
  writeFile("problem.dat", "Dear Sir");
  QString text;
  dialogs.expectAndPress("OK", &text);
  saveByKey();
  activate();
  EXPECT_EQ(text.toStdString(),
            "Not saved: the file is there already and is not the values of a problem\n" + file("problem.dat"));
  EXPECT_EQ(contentOf("problem.dat"), "Dear Sir");
  EXPECT_TRUE(window->isOpen());
  dialogs.expectAndCancel();
  saveByKey();
  activate();
  EXPECT_EQ(contentOf("problem.dat"), "Dear Sir");
  dialogs.expectAndType(pathOf("other"));
  saveByKey();
  EXPECT_TRUE(contentOf("other.dat").startsWith(" 0 "));
}

TEST_F(Save, OfACopyTakesWhatTheFieldsShowAndAllValues) {
  declare("2", "x,y");
  specify(0, "-1", "3", "5", "2");
  enter("txtExpansion(0)", "*");
  click("cmdNextVar");
  specify(1, "10", "20", "3", "1");
  window->saveCopy(file("copy"));
  const Dimension copy = test::stored(file("copy"));
  EXPECT_EQ(copy.LowerLimit, (PerVariable<double>{-1, 10}));
  EXPECT_EQ(copy.UpperLimit, (PerVariable<double>{3, 20}));
  EXPECT_EQ(copy.Degree, (PerVariable<Long>{2, 1}));
  EXPECT_EQ(copy.Centre, (PerVariable<double>{1, 15}));
  EXPECT_EQ(copy.X0, (std::vector<double>{-1, 0, 1, 2, 3}));
  EXPECT_EQ(copy.X1, (std::vector<double>{10, 15, 20}));
  EXPECT_EQ(copy.F.last(), (PerVariable<Long>{4, 2}));
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
