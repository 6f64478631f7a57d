#include <gtest/gtest.h>

#include <QDir>
#include <QScreen>
#include <QTimer>

#include "ui/support/main_window_test.h"

namespace tavimor {
namespace {

class States : public MainWindowTest {};

TEST_F(States, AtTheStartTheNumberOpenAndHelpAreInUse) {
  EXPECT_EQ(focusName(), "txtOrder");
  EXPECT_TRUE(item("mnuOpen").isEnabled());
  EXPECT_TRUE(item("mnuHelp").isEnabled());
  for (const char* name : {"mnuSave", "mnuSaveAs", "mnuPrint"}) {
    EXPECT_FALSE(item(name).isEnabled()) << name;
    EXPECT_TRUE(item(name).isVisible()) << name;
  }
  EXPECT_FALSE(item("mnuAbout").isVisible());
  for (const char* name :
       {"cmdEvaluations", "cmdCompute", "cmdEditFun", "cmdNextVar", "cmdPrevVar", "cmdAddVars(0)", "cmdEditVars(0)"})
    EXPECT_FALSE(button(name).isEnabled()) << name;
  EXPECT_FALSE(box("txtLL(0)").isEnabled());
}

TEST_F(States, WithTheNumberGivenTheNamesAreInUse) {
  type("2");
  press(Qt::Key_Tab);
  EXPECT_EQ(focusName(), "txtVarNams");
  EXPECT_FALSE(box("txtOrder").isEnabled());
  for (const char* name : {"mnuOpen", "mnuSave", "mnuSaveAs", "mnuPrint"}) EXPECT_FALSE(item(name).isEnabled()) << name;
  EXPECT_FALSE(box("txtLL(0)").isEnabled());
  EXPECT_FALSE(button("cmdCompute").isEnabled());
}

TEST_F(States, WithTheNamesGivenTheBlocksAreInUse) {
  declare("2", "x,y");
  EXPECT_FALSE(box("txtVarNams").isEnabled());
  EXPECT_FALSE(item("mnuOpen").isEnabled());
  for (const char* name : {"mnuSave", "mnuSaveAs", "mnuPrint"}) EXPECT_TRUE(item(name).isEnabled()) << name;
  EXPECT_TRUE(item("mnuAbout").isVisible());
  EXPECT_TRUE(box("txtLL(0)").isEnabled());
  EXPECT_FALSE(button("cmdEvaluations").isEnabled());
}

// The smallest screens: 1024 x 600, and 1366 x 768 at a scale of 200 %.
TEST_F(States, TheWindowCanBeMadeAsSmallAsASmallScreen) {
  declare("4", "x,y,z,t");
  window->resize(660, 330);
  EXPECT_EQ(window->size(), QSize(660, 330));
  const QSize screen = window->screen()->availableSize();
  EXPECT_LE(window->height(), screen.height());
  for (int n = 0; n < 6; ++n) press(Qt::Key_Tab);
  const QWidget& field = *QApplication::focusWidget();
  EXPECT_FALSE(field.visibleRegion().isEmpty()) << field.objectName().toStdString();
}

TEST_F(States, ALongNameDoesNotWidenTheWindow) {
  const int width = window->minimumSizeHint().width();
  declare("1", QString(300, QLatin1Char('x')));
  EXPECT_EQ(label("lblVar(0)").text().size(), 300);
  EXPECT_LT(window->minimumSizeHint().width(), width + 50);
  EXPECT_LE(window->width(), 660);
}

TEST_F(States, UnderReviewOfTheFunctionEveryNumberOfValuesIsDisabled) {
  declare("2", "x,y");
  dialogs.expectAndType("0,0");
  click("cmdEditFun");
  EXPECT_FALSE(box("txtPoints(0)").isEnabled());
  EXPECT_FALSE(box("txtPoints(1)").isEnabled());
}

TEST_F(States, FittedTheEvaluationsAreInUse) {
  declare("1", "x");
  click("cmdCompute");
  EXPECT_TRUE(button("cmdEvaluations").isEnabled());
}

TEST_F(States, ASingularFitDoesNotEnableTheEvaluations) {
  declare("1", "x");
  enter("txtUL(0)", "0");
  click("cmdCompute");
  EXPECT_EQ(listing(), "YIELDS SINGULAR MATRIX.\n");
  EXPECT_FALSE(model.FitDone);
  EXPECT_FALSE(button("cmdEvaluations").isEnabled());
}

TEST_F(States, NothingDisablesTheEvaluationsOnceAFitHasSucceeded) {
  declare("1", "x");
  click("cmdCompute");
  enter("txtUL(0)", "0");
  click("cmdCompute");
  EXPECT_FALSE(model.FitDone);
  EXPECT_TRUE(button("cmdEvaluations").isEnabled());
}

TEST_F(States, LoadingLeavesAnEmptyModelInTheWorkingDirectory) {
  EXPECT_EQ(QDir(QString::fromStdString(model.WorkDir)), QDir(folder.path()));
  EXPECT_EQ(model.CurVar, 1);
  EXPECT_EQ(model.X0, std::vector<double>{0.0});
  EXPECT_EQ(model.F.size(), 1U);
  EXPECT_EQ(model.Coef.size(), 1U);
}

class Navigation : public MainWindowTest {
 protected:
  void expectBlock(int k) {
    EXPECT_EQ(model.CurVar, k + 1);
    EXPECT_EQ(focusName(), "txtLL(" + std::to_string(k) + ")");
    for (int i = 0; i <= model.LastVar; ++i)
      for (const char* array : {"txtLL", "txtUL", "txtTerms", "txtPoints", "txtExpansion", "chkSpaced", "cmdEditVars",
                                "cmdAddVars", "lblVar"}) {
        const QString name = QString("%1(%2)").arg(array).arg(i);
        EXPECT_EQ(window->findChild<QWidget*>(name)->isVisible(), i == k) << name.toStdString();
      }
    EXPECT_EQ(label(QString("lblVar(%1)").arg(k)).text().toStdString(), model.VarName[k]);
  }
};

TEST_F(Navigation, WithOneVariableBothButtonsStay) {
  declare("1", "x");
  expectBlock(0);
  click("cmdNextVar");
  expectBlock(0);
  click("cmdPrevVar");
  expectBlock(0);
}

TEST_F(Navigation, NextGoesRoundFourVariables) {
  declare("4", "a,b,c,d");
  for (const int k : {1, 2, 3, 0, 1}) {
    click("cmdNextVar");
    expectBlock(k);
  }
}

TEST_F(Navigation, PreviousGoesRoundFourVariables) {
  declare("4", "a,b,c,d");
  for (const int k : {3, 2, 1, 0, 3}) {
    click("cmdPrevVar");
    expectBlock(k);
  }
}

TEST_F(Navigation, ARefusedEntryStopsIt) {
  declare("2", "x,y");
  enter("txtLL(0)", "abc");
  click("cmdNextVar");
  expectBlock(0);
}

TEST_F(Navigation, TheLabelsStandForTheFieldsOnScreen) {
  declare("2", "x,y");
  click("cmdNextVar");
  EXPECT_EQ(label("lblLL").buddy(), &box("txtLL(1)"));
  EXPECT_EQ(label("lblExpansion").buddy(), &box("txtExpansion(1)"));
}

class PublicOperations : public MainWindowTest {};

TEST_F(PublicOperations, ValuesPassThroughVarX) {
  declare("1", "x");
  click("cmdEditVars(0)");
  model.VarX = 7;
  window->SetVarX(0, 1);
  model.VarX = 0;
  window->GetVarX(0, 1);
  EXPECT_EQ(model.VarX, 7);
}

TEST_F(PublicOperations, AVariableBeyondTheFourthLeavesVarX) {
  model.VarX = 7;
  window->GetVarX(4, 0);
  EXPECT_EQ(model.VarX, 7);
}

TEST_F(PublicOperations, EvaluateGivesTheFitsValue) {
  declare("1", "x");
  click("cmdEditVars(0)");
  clickDone();
  model.F(1, 0, 0, 0) = 3;
  click("cmdCompute");
  model.t[0] = 1 - model.Centre[0];
  window->Evaluate();
  EXPECT_NEAR(model.S3, 3, 1e-12);
}

TEST_F(PublicOperations, ClosingTheWindowClosesTheOthers) {
  QPointer<Form> other = new Form("frmOther");
  other->show();
  window->disable();
  window->close();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(other.isNull());
  EXPECT_TRUE(window.isNull());
}

TEST_F(PublicOperations, ClosingTheWindowEndsTheProgram) {
  QTimer::singleShot(0, window, [this] { window->close(); });
  EXPECT_EQ(QApplication::exec(), 0);
}

}  // namespace
}  // namespace tavimor
