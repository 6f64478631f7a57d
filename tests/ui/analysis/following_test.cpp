#include <gmock/gmock.h>

#include "support/stored.h"
#include "ui/support/analysis_window_test.h"

namespace tavimor {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

class AnalysisFollows : public AnalysisWindowTest {
 protected:
  static bool isGrey() {
    return coefficients().palette().color(QPalette::Active, QPalette::Text) ==
           QApplication::palette().color(QPalette::Disabled, QPalette::Text);
  }
};

TEST_F(AnalysisFollows, BeforeAFitItSaysWhatToDo) {
  openAnalysis();
  EXPECT_THAT(verdict(), HasSubstr("press Compute"));
  EXPECT_TRUE(window->isEnabled());
}

TEST_F(AnalysisFollows, EveryComputeIsShown) {
  openWithAnalysis(twoVariables());
  compute();
  EXPECT_EQ(coefficients().model()->rowCount(), 6);
  EXPECT_THAT(verdict(), StartsWith("15 of 15 digits"));
  EXPECT_FALSE(isGrey());
  enter("txtTerms(0)", "1");
  compute();
  EXPECT_EQ(coefficients().model()->rowCount(), 4);
}

TEST_F(AnalysisFollows, AFitThatWasThereBeforeTheWindowIsShown) {
  test::store(twoVariables(), file("problem"));
  open("problem");
  click("cmdCompute");
  openAnalysis();
  waitForVerdict();
  EXPECT_EQ(coefficients().model()->rowCount(), 6);
}

TEST_F(AnalysisFollows, AChangeThatDropsTheFitGreysWhatIsShown) {
  openWithAnalysis(twoVariables());
  compute();
  enter("txtTerms(0)", "1");
  MainWindowTest::press(Qt::Key_Tab);
  EXPECT_TRUE(isGrey());
  EXPECT_EQ(coefficients().model()->rowCount(), 6) << "what was shown stays readable";
  EXPECT_THAT(verdict(), HasSubstr("press Compute"));
}

TEST_F(AnalysisFollows, AFitThatIsNotFoundIsSaid) {
  Dimension problem = twoVariables();
  problem.LowerLimit[0] = problem.UpperLimit[0] = 0;
  openWithAnalysis(problem);
  click("cmdCompute");
  EXPECT_EQ(listing(), "YIELDS SINGULAR MATRIX.\n");
  EXPECT_THAT(verdict(), HasSubstr("no fit"));
}

TEST_F(AnalysisFollows, StoredResultsOfOtherDataAreTold) {
  Dimension problem = twoVariables();
  problem.Coef.redim(problem.Degree);
  problem.Coef(0, 0, 0, 0) = 77;
  problem.FitDone = true;
  openWithAnalysis(problem);
  waitForVerdict();
  EXPECT_THAT(verdict(), HasSubstr("NOT the fit of the data"));
  press("cmdRemedy");
  waitForVerdict();
  EXPECT_THAT(verdict(), StartsWith("15 of 15 digits"));
}

TEST_F(AnalysisFollows, F9BringsTheSameWindowBack) {
  openAnalysis();
  const frmAnalysis* first = &analysis();
  openAnalysis();
  EXPECT_EQ(&analysis(), first);
}

TEST_F(AnalysisFollows, ClosingTheMainWindowClosesIt) {
  openWithAnalysis(twoVariables());
  click("cmdCompute");
  window->close();
  EXPECT_EQ(Form::openForm<frmAnalysis>(), nullptr);
}

TEST_F(AnalysisFollows, AClosedWindowIsMadeAnewWithWhatIsKnown) {
  openWithAnalysis(twoVariables());
  compute();
  analysis().close();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  openAnalysis();
  EXPECT_EQ(coefficients().model()->rowCount(), 6);
}

}  // namespace
}  // namespace tavimor
