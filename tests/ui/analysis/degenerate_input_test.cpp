#include <gmock/gmock.h>

#include <limits>

#include "support/stored.h"
#include "support/stored_problems.h"
#include "ui/support/analysis_window_test.h"

namespace tavimor {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

/// Problems that leave little or nothing to say: every page says what it cannot show.
class DegenerateInput : public AnalysisWindowTest {
 protected:
  void lookAtAllPages(const Dimension& problem) {
    openWithAnalysis(problem);
    compute();
    if (model.FitDone)
      lookAtAllPages();
    else
      EXPECT_THAT(verdict(), HasSubstr("There is no fit"));
  }

  static void lookAtAllPages() {
    for (const char* name : {"pagCoefficients", "pagStatistics", "pagDegrees"}) {
      page(name);
      EXPECT_TRUE(QTest::qWaitFor([&] { return note(name).rfind("Looking", 0) != 0; })) << name;
      EXPECT_FALSE(note(name).empty()) << name;
      analysis().grab();
    }
    for (const char* name : {"Section", "Map", "Residuals"}) lookAtPicture(name);
  }

  // A program without pictures has none of these pages.
  static void lookAtPicture(const QString& name) {
    const auto* picture = analysis().findChild<QWidget*>("pic" + name);
    if (picture == nullptr) return;
    page("pag" + name);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !picture->accessibleDescription().isEmpty(); })) << name.toStdString();
    analysis().grab();
  }
};

Dimension withFunction(Dimension model, double (*f)(Long)) {
  for (std::size_t n = 0; n < model.F.size(); ++n) model.F.data()[n] = f(static_cast<Long>(n));
  return model;
}

TEST_F(DegenerateInput, AsManyCoefficientsAsPoints) {
  lookAtAllPages(twoVariables());
  EXPECT_THAT(note("pagCoefficients"), HasSubstr("as many coefficients as points"));
  EXPECT_THAT(note("pagStatistics"), HasSubstr("no degree of freedom"));
}

TEST_F(DegenerateInput, DegreeZero) {
  Dimension problem = test::gridProblem({4});
  problem.Degree[0] = 0;
  lookAtAllPages(problem);
  EXPECT_EQ(coefficients().model()->rowCount(), 1);
  EXPECT_EQ(cell(coefficients(), 0, 0), "1");
}

TEST_F(DegenerateInput, AnExactFit) {
  lookAtAllPages(withFunction(test::gridProblem({6}), [](Long n) { return 1.0 + n; }));
  EXPECT_THAT(note("pagCoefficients"), HasSubstr("0 as far as can be told"));
  EXPECT_THAT(note("pagDegrees"), StartsWith("Recommended: 1"));
}

TEST_F(DegenerateInput, AFunctionOfZeros) {
  lookAtAllPages(withFunction(test::gridProblem({6}), [](Long) { return 0.0; }));
  EXPECT_THAT(verdict(), HasSubstr("No coefficient is more than"));
}

TEST_F(DegenerateInput, TinyValues) {
  lookAtAllPages(withFunction(test::gridProblem({6}), [](Long n) { return 1e-300 * (n * n + n % 2); }));
}

TEST_F(DegenerateInput, HugeValues) {
  lookAtAllPages(withFunction(test::gridProblem({6}), [](Long n) { return 1e300 * (n * n + n % 2); }));
}

TEST_F(DegenerateInput, ValuesThatOverflow) {
  lookAtAllPages(withFunction(test::gridProblem({6}), [](Long n) { return n % 2 == 0 ? 1.7e308 : -1.7e308; }));
}

TEST_F(DegenerateInput, AValueThatIsNoNumber) {
  lookAtAllPages(withFunction(test::gridProblem({6}),
                              [](Long n) { return n == 2 ? std::numeric_limits<double>::quiet_NaN() : 1.0 * n; }));
  EXPECT_THAT(verdict(), HasSubstr("no finite number"));
  EXPECT_THAT(note("pagCoefficients"), HasSubstr("no finite number"));
  EXPECT_THAT(note("pagStatistics"), HasSubstr("no finite number"));
  EXPECT_THAT(note("pagDegrees"), HasSubstr("no finite number"));
  EXPECT_FALSE(inAnalysis<QPushButton>("cmdUsePrecise").isEnabled());
}

TEST_F(DegenerateInput, ValuesThatAreEqual) {
  Dimension problem = test::gridProblem({6});
  problem.Degree[0] = 3;
  problem.EquallySpaced[0] = false;
  problem.X0 = {0.1, 0.1, 0.3, 0.3, 0.3, 0.7};
  lookAtAllPages(problem);
  EXPECT_THAT(verdict(), HasSubstr("They do with degree 2."));
}

TEST_F(DegenerateInput, ASingleValueOfAVariable) {
  Dimension problem = test::gridProblem({4, 1});
  problem.Degree = {1, 0};
  problem.FitDone = true;
  problem.Coef.redim(problem.Degree);
  openWithAnalysis(problem);
  waitForVerdict();
  lookAtAllPages();
}

TEST_F(DegenerateInput, LongNamesLeaveRoomForTheNumbers) {
  Dimension problem = test::gridProblem({4, 4});
  problem.VarName = {std::string(300, 'a'), std::string(300, 'b')};
  lookAtAllPages(problem);
  EXPECT_LT(coefficients().columnWidth(0), coefficients().width());
  EXPECT_EQ(cell(coefficients(), 1, 0), std::string(300, 'a'));
  EXPECT_LT(analysis().minimumSizeHint().width(), 860);
}

}  // namespace
}  // namespace tavimor
