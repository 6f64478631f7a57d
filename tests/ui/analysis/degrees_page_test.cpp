#include <gmock/gmock.h>

#include "analysis/degree_search.h"
#include "support/stored_problems.h"
#include "ui/analysis/degree_table.h"
#include "ui/support/analysis_window_test.h"

namespace tavimor {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

/// 1 + 2 x + y^2 on a grid of 6 x 5 values, fitted with degrees 2 and 2.
class Degrees : public AnalysisWindowTest {
 protected:
  Degrees() {
    Dimension problem = test::gridProblem({6, 5});
    problem.Degree = {2, 2};
    for (Long i = 0; i <= 5; ++i)
      for (Long j = 0; j <= 4; ++j) problem.F(i, j, 0, 0) = 1 + 2.0 * i + 1.0 * j * j;
    openWithAnalysis(problem);
    compute();
    page("pagDegrees");
    EXPECT_TRUE(QTest::qWaitFor([] { return note("pagDegrees").rfind("Looking", 0) != 0; }));
  }

  static QTableView& table() { return inAnalysis<QTableView>("tblDegrees"); }

  static int rowOf(const std::string& degrees) {
    for (int row = 0; row < table().model()->rowCount(); ++row)
      if (cell(table(), row, DegreeTable::Degrees) == degrees) return row;
    ADD_FAILURE() << "no row " << degrees;
    return 0;
  }
};

TEST_F(Degrees, MarkTheRecommendedCombinationAndThePresentOne) {
  EXPECT_THAT(note("pagDegrees"), StartsWith("Recommended: 1,2, with 6 coefficients."));
  EXPECT_EQ(cell(table(), rowOf("1,2"), DegreeTable::Remark), "recommended");
  EXPECT_EQ(cell(table(), rowOf("2,2"), DegreeTable::Remark), "now");
}

TEST_F(Degrees, AreThoseOfTheSearch) {
  QTest::mouseClick(&inAnalysis<QCheckBox>("chkAll"), Qt::LeftButton, {}, {8, 8});
  ASSERT_TRUE(inAnalysis<QCheckBox>("chkAll").isChecked());
  const DegreeSearch wanted = DegreeSearcher(problemData(model), largestDegrees(model)).search();
  ASSERT_EQ(table().model()->rowCount(), std::ssize(wanted.combinations));
  for (int row = 0; row < table().model()->rowCount(); ++row)
    EXPECT_EQ(cell(table(), row, DegreeTable::Terms),
              std::to_string(wanted.combinations[static_cast<std::size_t>(row)].statistics.terms));
}

TEST_F(Degrees, ADoubleClickPutsThemIntoTheFields) {
  const QModelIndex wanted = table().model()->index(rowOf("1,2"), 0);
  table().scrollTo(wanted);
  const QPoint place = table().visualRect(wanted).center();
  QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, place);
  QTest::mouseDClick(table().viewport(), Qt::LeftButton, {}, place);
  EXPECT_EQ(textOf("txtTerms(0)"), "1");
  EXPECT_EQ(textOf("txtTerms(1)"), "2");
  EXPECT_FALSE(model.FitDone) << "another degree drops the fit, as when it is typed";
  EXPECT_THAT(verdict(), HasSubstr("press Compute"));
  compute();
  EXPECT_EQ(model.Coef.size(), 6U);
}

}  // namespace
}  // namespace tavimor
