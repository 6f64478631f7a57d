#include "ui/data_windows/frmEvaluations.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QTest>
#include <cmath>

#include "runtime/number_text.h"
#include "runtime/run_time_error.h"
#include "ui/main_window/frmTavimor.h"
#include "ui/support/dialogs.h"

namespace tavimor {
namespace {

using ::testing::StartsWith;

// A problem with a fit whose coefficients are known: F = 1 + 2 (x - 0.5) + 3 (y - 1) + 4 (x - 0.5)(y - 1) and so on.
class EvaluationsWindow : public testing::Test {
 protected:
  EvaluationsWindow() {
    main = new frmTavimor(model);
    main->show();
  }

  ~EvaluationsWindow() override {
    delete window;
    delete main;
  }

  void fit(const std::vector<std::string>& names) {
    model.LastVar = static_cast<Long>(names.size()) - 1;
    for (std::size_t k = 0; k < names.size(); ++k) {
      model.VarName[k] = names[k];
      model.Degree[k] = 1;
      model.Centre[k] = 0.5 + static_cast<double>(k);
    }
    model.Coef.redim(model.Degree);
    for (std::size_t n = 0; n < model.Coef.size(); ++n) model.Coef.data()[n] = 1.0 + static_cast<double>(n);
    model.FitDone = true;
  }

  void open() {
    window = new frmEvaluations(model, main->ScriptControl1);
    window->show();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
  }

  template <class Control>
  Control* find(const QString& name) {
    auto* control = window->findChild<Control*>(name);
    EXPECT_NE(control, nullptr) << name.toStdString();
    return control;
  }

  TextBox* box(int k) { return find<TextBox>(QStringLiteral("txtVarx(%1)").arg(k)); }

  void type(int k, const char* typed) {
    QTest::mouseClick(box(k), Qt::LeftButton);
    box(k)->selectAll();
    QTest::keyClicks(box(k), QLatin1String(typed));
  }

  std::string compute() {
    QTest::mouseClick(find<QPushButton>(QStringLiteral("cmdCompute")), Qt::LeftButton);
    return estimate();
  }

  std::string estimate() { return find<QLabel>(QStringLiteral("lblApprox"))->text().toStdString(); }

  /// The fit of one variable at x, from its coefficients.
  std::string lineAt(double x) const {
    return numberText(model.Coef(0, 0, 0, 0) + model.Coef(1, 0, 0, 0) * (x - model.Centre[0]));
  }

  Dialogs dialogs;
  Dimension model;
  QPointer<frmTavimor> main;
  QPointer<frmEvaluations> window;
};

TEST_F(EvaluationsWindow, ShowsOneRowPerVariableAndThePointZeroAtFirst) {
  fit({"x", "temp"});
  open();
  for (int k = 0; k < 10; ++k) {
    EXPECT_EQ(box(k)->isVisible(), k < 2) << k;
    EXPECT_EQ(find<QLabel>(QStringLiteral("lblVarx(%1)").arg(k))->isVisible(), k < 2) << k;
  }
  EXPECT_EQ(find<QLabel>(QStringLiteral("lblVarx(0)"))->text(), QStringLiteral("x="));
  EXPECT_EQ(find<QLabel>(QStringLiteral("lblVarx(1)"))->text(), QStringLiteral("temp="));
  EXPECT_EQ(box(0)->text(), QStringLiteral("0"));
  EXPECT_EQ(box(1)->text(), QStringLiteral("0"));
  EXPECT_EQ(estimate(), "");
}

TEST_F(EvaluationsWindow, CaptionsAndToolTipsReadAsUsersKnowThem) {
  fit({"x"});
  open();
  EXPECT_EQ(find<QGroupBox>(QStringLiteral("fraEval"))->title(), QStringLiteral("Evaluation Point"));
  EXPECT_EQ(find<QGroupBox>(QStringLiteral("fraEval"))->toolTip(), QStringLiteral("Enter values for each variable"));
  EXPECT_EQ(find<QPushButton>(QStringLiteral("cmdCompute"))->text(), QStringLiteral("Compute"));
  EXPECT_EQ(find<QPushButton>(QStringLiteral("cmdCompute"))->toolTip(),
            QStringLiteral("Evaluate approximation and function"));
  EXPECT_EQ(find<QLabel>(QStringLiteral("lblAppr"))->text(), QStringLiteral("Estimate="));
  EXPECT_EQ(find<QLabel>(QStringLiteral("lblApprox"))->toolTip(), QStringLiteral("Derivative"));
}

TEST_F(EvaluationsWindow, TheEstimateIsTheFitAtThePoint) {
  fit({"x", "y"});
  open();
  type(0, "1.25");
  type(1, "-2");
  const double t0 = 1.25 - 0.5, t1 = -2.0 - 1.5;
  EXPECT_EQ(compute(), numberText(1.0 + 2.0 * t0 + (3.0 + 4.0 * t0) * t1));
  EXPECT_EQ(model.x[0], 1.25);
  EXPECT_EQ(model.t[1], t1);
}

TEST_F(EvaluationsWindow, TheLeadingNumeralOfATextIsTaken) {
  fit({"x"});
  open();
  const std::vector<std::pair<const char*, double>> readings = {{"1.5abc", 1.5}, {"abc", 0.0},       {"1,5", 1.0},
                                                                {"  2", 2.0},    {"-2.5E-1", -0.25}, {".5", 0.5}};
  for (const auto& [typed, x] : readings) {
    type(0, typed);
    EXPECT_EQ(compute(), lineAt(x)) << typed;
    EXPECT_EQ(box(0)->text(), QLatin1String(typed)) << "the text stays as typed";
  }
  box(0)->clear();
  EXPECT_EQ(compute(), lineAt(0.0));
}

TEST_F(EvaluationsWindow, ThePointIsKeptBetweenOpenings) {
  fit({"x"});
  open();
  type(0, "1.5abc");
  compute();
  window->close();
  delete window;
  model.Coef(0, 0, 0, 0) = 100.0;  // another fit
  open();
  EXPECT_EQ(box(0)->text(), QStringLiteral("1.5"));
  EXPECT_EQ(estimate(), "");
  EXPECT_EQ(compute(), lineAt(1.5));
}

TEST_F(EvaluationsWindow, WithoutAFitThePreviousEstimateIsShownAgain) {
  fit({"x"});
  open();
  type(0, "2");
  const std::string before = compute();
  model.FitDone = false;
  type(0, "3");
  EXPECT_EQ(compute(), before);
}

// A script's value is seen by dividing by what it should differ from by nothing.
TEST_F(EvaluationsWindow, TheCoordinatesAreAssignedInTheScript) {
  fit({"Width", "e"});
  open();
  type(0, "1.5");
  type(1, "-2.25E-05");
  compute();
  for (const char* statement : {"y = 1 / (width - 1.5)", "y = 1 / (sh.e + 2.25E-05)"}) {
    QString message;
    dialogs.expectAndPress(QStringLiteral("OK"), &message);
    EXPECT_THROW(main->ScriptControl1.ExecuteStatement(statement), RunTimeError);
    EXPECT_THAT(message.toStdString(), StartsWith("Division by zero"));
  }
  EXPECT_EQ(model.E, std::exp(1.0)) << "the program's own constant is not the script's";
}

TEST_F(EvaluationsWindow, ANameThatTheScriptRefusesIsReportedAndEndsTheClick) {
  fit({"x", "my var", "z"});
  open();
  type(0, "1");
  type(1, "2");
  type(2, "3");
  QString message;
  dialogs.expect([&](QDialog& dialog) {
    auto* message_box = qobject_cast<QMessageBox*>(&dialog);
    ASSERT_NE(message_box, nullptr);
    message = message_box->text();
    EXPECT_EQ(message_box->windowTitle(), QStringLiteral("Tavimor"));
    EXPECT_EQ(message_box->standardButtons(), QMessageBox::Ok);
    QTest::keyClick(message_box, Qt::Key_Return);
  });
  EXPECT_EQ(compute(), "");
  EXPECT_EQ(message.toStdString(), main->ScriptControl1.Error().Description);
  EXPECT_THAT(message.toStdString(), StartsWith("'my var' cannot name a variable"));
  EXPECT_EQ(model.x[1], 2.0) << "read before its statement failed";
  EXPECT_EQ(model.x[2], 0.0) << "never read";
  EXPECT_NO_THROW(main->ScriptControl1.ExecuteStatement("y = x"));
}

TEST_F(EvaluationsWindow, AReservedWordIsReportedAtEveryClick) {
  fit({"next"});
  open();
  for (int n = 0; n < 2; ++n) {
    QString message;
    dialogs.expectAndPress(QStringLiteral("OK"), &message);
    EXPECT_EQ(compute(), "");
    EXPECT_THAT(message.toStdString(), StartsWith("'next' is a reserved word"));
  }
}

TEST_F(EvaluationsWindow, ANumberTooLargeIsReadAsNone) {
  fit({"x"});
  open();
  type(0, "1E400");
  EXPECT_EQ(compute(), lineAt(0.0));
}

TEST_F(EvaluationsWindow, TheMainWindowStaysEnabled) {
  fit({"x"});
  open();
  EXPECT_TRUE(main->isEnabled());
  window->close();
  EXPECT_TRUE(main->isEnabled());
}

TEST_F(EvaluationsWindow, ABoxIsSelectedWhenItGetsTheFocus) {
  fit({"x", "y"});
  open();
  EXPECT_TRUE(box(0)->hasFocus());
  EXPECT_EQ(box(0)->selectedText(), QStringLiteral("0"));
  QTest::keyClicks(box(0), QStringLiteral("12"));
  QTest::keyClick(box(0), Qt::Key_Tab);
  EXPECT_EQ(box(1)->selectedText(), QStringLiteral("0"));
  QTest::keyClick(box(1), Qt::Key_Backtab);
  EXPECT_EQ(box(0)->selectedText(), QStringLiteral("12"));
}

TEST_F(EvaluationsWindow, TheKeyboardAloneEvaluates) {
  fit({"x"});
  open();
  QTest::keyClicks(box(0), QStringLiteral("4"));
  QTest::keyClick(box(0), Qt::Key_Return);
  QTest::keyClick(window->focusWidget(), Qt::Key_Return);
  EXPECT_EQ(estimate(), lineAt(4.0));
}

}  // namespace
}  // namespace tavimor
