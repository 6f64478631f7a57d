#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>

#include "support/stored_problems.h"
#include "ui/analysis/coefficient_table.h"
#include "ui/support/analysis_window_test.h"

namespace tavimor {
namespace {

class AnalysisTables : public AnalysisWindowTest {
 protected:
  AnalysisTables() {
    Dimension problem = test::gridProblem({7});
    problem.Degree[0] = 2;
    for (Long i = 0; i <= 6; ++i) problem.F(i, 0, 0, 0) = 5 - 3.0 * i + 0.5 * i * i + (i % 2) * 0.01;
    openWithAnalysis(problem);
    compute();
  }

  static void sortBy(int column) {
    const QHeaderView& header = *coefficients().horizontalHeader();
    const QPoint place(header.sectionViewportPosition(column) + header.sectionSize(column) / 2, header.height() / 2);
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, place);
  }

  static std::string terms() {
    std::string text;
    for (int row = 0; row < coefficients().model()->rowCount(); ++row) text += cell(coefficients(), row, 0) + ' ';
    return text;
  }
};

TEST_F(AnalysisTables, StandInTheOrderOfTheListing) { EXPECT_EQ(terms(), "1 x x^2 "); }

TEST_F(AnalysisTables, AClickOnAHeadingSortsByItsNumbers) {
  sortBy(CoefficientTable::Listed);
  EXPECT_EQ(terms(), "x x^2 1 ");
  sortBy(CoefficientTable::Listed);
  EXPECT_EQ(terms(), "1 x^2 x ");
  sortBy(CoefficientTable::Listed);
  EXPECT_EQ(terms(), "1 x x^2 ");
}

TEST_F(AnalysisTables, TheOrderStaysForTheNextFitAndTheNextRun) {
  sortBy(CoefficientTable::Listed);
  compute();
  EXPECT_EQ(terms(), "x x^2 1 ");
  analysis().close();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  openAnalysis();
  EXPECT_EQ(terms(), "x x^2 1 ");
}

TEST_F(AnalysisTables, WithoutASelectionAllRowsAreCopied) {
  analysis().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&analysis()));
  coefficients().setFocus();
  QTest::keyClick(&coefficients(), Qt::Key_C, Qt::ControlModifier);
  const QStringList lines = QGuiApplication::clipboard()->text().split('\n');
  ASSERT_EQ(lines.size(), 5);
  EXPECT_EQ(lines[0].toStdString(), "Term\tListed\tRight digits\tPrecise\tStd error\tt\tp\t95 % from\tto");
  EXPECT_EQ(lines[2].section('\t', 0, 0).toStdString(), "x");
  EXPECT_EQ(lines[2].section('\t', 1, 1).toStdString(), cell(coefficients(), 1, CoefficientTable::Listed));
}

TEST_F(AnalysisTables, SelectedRowsAreCopied) {
  analysis().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&analysis()));
  coefficients().setFocus();
  coefficients().selectRow(2);
  QTest::keyClick(&coefficients(), Qt::Key_C, Qt::ControlModifier);
  const QStringList lines = QGuiApplication::clipboard()->text().split('\n');
  ASSERT_EQ(lines.size(), 3);
  EXPECT_TRUE(lines[1].startsWith("x^2\t"));
}

TEST_F(AnalysisTables, TellReadersOfTheScreenWhatTheyShow) {
  EXPECT_EQ(coefficients().accessibleName(), "Coefficients");
  EXPECT_FALSE(coefficients().accessibleDescription().isEmpty());
}

}  // namespace
}  // namespace tavimor
