#include <gmock/gmock.h>

#include <QMessageBox>

#include "analysis/analysis.h"
#include "model/value_lists.h"
#include "runtime/number_text.h"
#include "support/stored.h"
#include "support/stored_problems.h"
#include "ui/support/analysis_window_test.h"

namespace tavimor {
namespace {

using testing::ContainsRegex;
using testing::HasSubstr;
using testing::StartsWith;

class VerdictButton : public AnalysisWindowTest {};

TEST_F(VerdictButton, PutsTheCentresIntoTheMiddle) {
  openWithAnalysis(badlyCentred());
  compute();
  EXPECT_THAT(verdict(), ContainsRegex("^[0-9] of 15 digits of the worst coefficient are right. Centre in the middle: "
                                       "1[0-9]. Precise coefficients: 15.$"));
  press("cmdRemedy");
  EXPECT_EQ(textOf("txtExpansion(0)"), "*");
  EXPECT_EQ(model.Centre[0], 1000.5);
  waitForVerdict();
  EXPECT_THAT(verdict(), ContainsRegex("^1[0-9] of 15 digits"));
}

TEST_F(VerdictButton, OffersNoLowerDegreesToAFitThatGoesThroughAllPoints) {
  openWithAnalysis(twoVariables());
  compute();
  EXPECT_FALSE(inAnalysis<QPushButton>("cmdRemedy").isVisible());
}

TEST_F(VerdictButton, OffersDegreesThatAreEnough) {
  Dimension line = test::gridProblem({6});
  line.Degree[0] = 3;
  line.LowerLimit[0] = -2.5;  // about its centre
  line.UpperLimit[0] = 2.5;
  generateSpacedValues(line, 0);
  for (Long i = 0; i <= 5; ++i) line.F(i, 0, 0, 0) = 1 + 2.0 * i;
  openWithAnalysis(line);
  compute();
  EXPECT_THAT(verdict(), HasSubstr("By BIC degree 1 would do: 2 terms instead of 4."));
  press("cmdRemedy");
  EXPECT_EQ(textOf("txtTerms(0)"), "1");
  waitForVerdict();
  EXPECT_EQ(model.Coef.size(), 2U);
  EXPECT_TRUE(model.FitDone);
}

TEST_F(VerdictButton, LeavesTheFieldInHandFirst) {
  openWithAnalysis(badlyCentred());
  compute();
  enter("txtUL(0)", "no number");
  QString text;
  dialogs.expectAndPress("OK", &text);
  press("cmdRemedy");
  EXPECT_THAT(text.toStdString(), HasSubstr("Upper limit"));
  EXPECT_EQ(textOf("txtExpansion(0)"), "0");
}

TEST_F(VerdictButton, WaitsForTheWindowOfTheValues) {
  openWithAnalysis(badlyCentred());
  compute();
  dialogs.expectAndType("0");
  click("cmdEditFun");
  QString text;
  dialogs.expectAndPress("OK", &text);
  press("cmdRemedy");
  EXPECT_THAT(text.toStdString(), HasSubstr("Done"));
  EXPECT_EQ(textOf("txtExpansion(0)"), "0");
}

class PreciseCoefficients : public AnalysisWindowTest {
 protected:
  PreciseCoefficients() {
    openWithAnalysis(badlyCentred());
    compute();
    fitted = model;
    press("cmdUsePrecise");
    waitForVerdict();
  }

  Fit fitted;
};

TEST_F(PreciseCoefficients, StandInThePlaceOfTheListedOnes) {
  const Fit precise = listedForm(secondOpinionOn(model).precise);
  ASSERT_EQ(model.Coef.size(), precise.Coef.size());
  for (std::size_t n = 0; n < precise.Coef.size(); ++n) {
    EXPECT_EQ(model.Coef.data()[n], precise.Coef.data()[n]);
    EXPECT_NE(model.Coef.data()[n], fitted.Coef.data()[n]);
  }
  EXPECT_EQ(model.SumRes2, precise.SumRes2);
  EXPECT_TRUE(model.FitDone);
}

TEST_F(PreciseCoefficients, AreToldInTheFirstLineOfTheList) {
  EXPECT_THAT(listing(), StartsWith("PRECISE COEFFICIENTS"));
  EXPECT_EQ(listing().substr(listing().find('\n') + 1), engineListing(model));
  EXPECT_THAT(verdict(), StartsWith("15 of 15 digits"));
  EXPECT_FALSE(inAnalysis<QPushButton>("cmdUsePrecise").isEnabled());
}

TEST_F(PreciseCoefficients, GoWithAnUndoAndComeBack) {
  const Fit precise = model;
  const std::string listed = listing();
  EXPECT_EQ(item("mnuUndo").text(), "&Undo: precise coefficients used");
  MainWindowTest::press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(model.Coef.data()[0], fitted.Coef.data()[0]);
  EXPECT_EQ(listing(), engineListing(model));
  MainWindowTest::press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(model.Coef.data()[0], precise.Coef.data()[0]);
  EXPECT_EQ(listing(), listed);
}

TEST_F(PreciseCoefficients, AreSaved) {
  MainWindowTest::press(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(numberText(openProblem(file("problem")).fit.Coef.data()[0]), numberText(model.Coef.data()[0]));
}

TEST_F(PreciseCoefficients, GoWithTheNextCompute) {
  compute();
  EXPECT_EQ(listing(), engineListing(model));
  for (std::size_t n = 0; n < fitted.Coef.size(); ++n) EXPECT_EQ(model.Coef.data()[n], fitted.Coef.data()[n]);
}

TEST_F(PreciseCoefficients, OfOtherCentresAreNotUsed) {
  compute();
  enter("txtExpansion(0)", "5");
  MainWindowTest::press(Qt::Key_S, Qt::ControlModifier);
  QString text;
  dialogs.expectAndPress("OK", &text);
  press("cmdUsePrecise");
  EXPECT_THAT(text.toStdString(), HasSubstr("press Compute first"));
  EXPECT_EQ(model.Coef.data()[0], fitted.Coef.data()[0]);
}

}  // namespace
}  // namespace tavimor
