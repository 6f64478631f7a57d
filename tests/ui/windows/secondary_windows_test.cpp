#include <gmock/gmock.h>

#include "runtime/run_time_error.h"
#include "support/stored.h"
#include "ui/data_windows/frmEvaluations.h"
#include "ui/data_windows/frmFun.h"
#include "ui/support/main_window_test.h"

namespace tavimor {
namespace {

using ::testing::StartsWith;

/// The main window with the problem of two variables (3 and 2 values), and what it opens.
class SecondaryWindows : public MainWindowTest {
 protected:
  SecondaryWindows() {
    test::store(twoVariables(), file("two"));
    window->openFile(file("two"));
  }

  template <class Window>
  static QVector<Window*> opened() {
    QVector<Window*> found;
    for (Form* form : Form::openForms())
      if (auto* wanted = qobject_cast<Window*>(form)) found << wanted;
    return found;
  }

  void review(const QString& answer) {
    dialogs.expect([this, answer](QDialog& dialog) {
      EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Review of function"));
      EXPECT_EQ(dialog.findChild<QLabel*>()->text(),
                QStringLiteral("Enter indices of starting set, separated by commas:"));
      QTest::keyClicks(dialog.findChild<QLineEdit*>(), answer);
      QTest::keyClick(dialog.findChild<QLineEdit*>(), Qt::Key_Return);
    });
  }

  static QString textOf(const Form& form, const char* name) {
    return form.findChild<QLineEdit*>(QLatin1String(name))->text();
  }
};

TEST_F(SecondaryWindows, EditFunctionOpensAtTheTypedPointWithTheMainWindowDisabled) {
  review(QStringLiteral("2,1"));
  click("cmdEditFun");
  ASSERT_EQ(opened<frmFun>().size(), 1);
  const frmFun& function = *opened<frmFun>().front();
  EXPECT_TRUE(function.isVisible());
  EXPECT_FALSE(window->isEnabled());
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(function.windowType(), Qt::Dialog) << "a window manager keeps it above the main window";
  EXPECT_EQ(textOf(function, "txtFunIndex(0)"), QStringLiteral("2"));
  EXPECT_EQ(textOf(function, "txtFunIndex(1)"), QStringLiteral("1"));
  EXPECT_EQ(textOf(function, "txtFun").toDouble(), twoVariablesAt(1.0, 2.0));
  EXPECT_FALSE(box("txtPoints(0)").isEnabled());
  EXPECT_FALSE(box("txtPoints(1)").isEnabled());
}

TEST_F(SecondaryWindows, AnIndexBeyondTheLastIsAskedForAgain) {
  review(QStringLiteral("3,0"));
  review(QStringLiteral("0,2"));
  review(QStringLiteral("0,1"));
  click("cmdEditFun");
  EXPECT_EQ(opened<frmFun>().size(), 1);
  EXPECT_EQ(model.StartIdx[1], 1);
}

TEST_F(SecondaryWindows, AnEmptyAnswerOpensNothing) {
  review(QString());
  click("cmdEditFun");
  dialogs.expectAndCancel();
  click("cmdEditFun");
  EXPECT_TRUE(opened<frmFun>().isEmpty());
  EXPECT_TRUE(window->isEnabled());
}

TEST_F(SecondaryWindows, DoneLeadsBackToTheMainWindow) {
  review(QStringLiteral("0,0"));
  click("cmdEditFun");
  auto* function = opened<frmFun>().front();
  QTest::mouseClick(function->findChild<QPushButton*>(QStringLiteral("cmdExit")), Qt::LeftButton);
  EXPECT_TRUE(opened<frmFun>().isEmpty());
  EXPECT_TRUE(window->isEnabled());
  review(QStringLiteral("1,0"));
  click("cmdEditFun");
  EXPECT_EQ(textOf(*opened<frmFun>().front(), "txtFunIndex(0)"), QStringLiteral("1"));
}

TEST_F(SecondaryWindows, ClosingTheMainWindowClosesAllOfThem) {
  click("cmdCompute");
  click("cmdEvaluations");
  review(QStringLiteral("0,0"));
  click("cmdEditFun");
  window->close();
  EXPECT_TRUE(Form::openForms().isEmpty());
}

TEST_F(SecondaryWindows, EvaluationsShowsOneWindowAndKeepsTheMainWindowEnabled) {
  click("cmdCompute");
  click("cmdEvaluations");
  click("cmdEvaluations");
  ASSERT_EQ(opened<frmEvaluations>().size(), 1);
  EXPECT_TRUE(opened<frmEvaluations>().front()->isVisible());
  EXPECT_TRUE(window->isEnabled());
}

TEST_F(SecondaryWindows, AFitIsEvaluatedAtATypedPoint) {
  click("cmdCompute");
  click("cmdEvaluations");
  auto* evaluations = opened<frmEvaluations>().front();
  ASSERT_TRUE(QTest::qWaitForWindowActive(evaluations));
  for (const char* coordinate : {"0.25", "1.5"}) {
    type(QLatin1String(coordinate));
    press(Qt::Key_Tab);
  }
  QTest::mouseClick(evaluations->findChild<QPushButton*>(QStringLiteral("cmdCompute")), Qt::LeftButton);
  EXPECT_NEAR(evaluations->findChild<QLabel*>(QStringLiteral("lblApprox"))->text().toDouble(),
              twoVariablesAt(0.25, 1.5), 1e-12);
}

TEST_F(SecondaryWindows, AfterAnotherComputeTheOldPointIsEvaluatedWithTheNewFit) {
  click("cmdCompute");
  click("cmdEvaluations");
  auto* evaluations = opened<frmEvaluations>().front();
  auto* compute = evaluations->findChild<QPushButton*>(QStringLiteral("cmdCompute"));
  QTest::mouseClick(compute, Qt::LeftButton);
  const QString before = evaluations->findChild<QLabel*>(QStringLiteral("lblApprox"))->text();
  for (std::size_t n = 0; n < model.F.size(); ++n) model.F.data()[n] += 10.0;
  click("cmdCompute");
  QTest::mouseClick(compute, Qt::LeftButton);
  EXPECT_NEAR(evaluations->findChild<QLabel*>(QStringLiteral("lblApprox"))->text().toDouble(), before.toDouble() + 10.0,
              1e-12);
}

/// A value in the script is seen by dividing by what it should differ from by nothing.
TEST_F(SecondaryWindows, TheScriptKnowsTheConstantsFromTheStart) {
  for (const char* difference : {"pi - 4 * Atn(1)", "sh.halfpi - 2 * Atn(1)", "e - Exp(1)", "Asin(1) - halfpi"}) {
    QString message;
    dialogs.expectAndPress(QStringLiteral("OK"), &message);
    EXPECT_THROW(window->ScriptControl1.ExecuteStatement("y = 1 / (" + std::string(difference) + ")"), RunTimeError);
    EXPECT_THAT(message.toStdString(), StartsWith("Division by zero"));
  }
}

TEST_F(SecondaryWindows, AFailingFunctionOfTheScriptObjectSetsTheWindowsIerr) {
  EXPECT_EQ(window->ierr, 0);
  window->ScriptControl1.ExecuteStatement("y = Asin(2)");
  EXPECT_EQ(window->ierr, static_cast<Long>(ErrorNumber::InvalidCall));
}

}  // namespace
}  // namespace tavimor
