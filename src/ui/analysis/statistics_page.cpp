#include "ui/analysis/statistics_page.h"

#include <QHeaderView>
#include <QVBoxLayout>

#include "ui/controls/make_control.h"

namespace tavimor {

namespace {

QString noteOn(const Analysis& analysis) {
  const SecondOpinion& opinion = analysis.opinion;
  QStringList notes;
  notes << QStringLiteral("N = %1 points, P = %2 coefficients.").arg(opinion.data.points()).arg(opinion.data.terms());
  if (!opinion.isExact()) {
    notes << QStringLiteral("There is no exact solution to take figures of: %1.")
                 .arg(QString::fromStdString(reasonText(opinion.precise.finding, analysis.problem())));
  } else {
    notes << QStringLiteral("RSS is the sum of the squared residuals, TSS that of the deviations from the mean.");
    if (analysis.statistics.noFreedom)
      notes << QStringLiteral("There are as many coefficients as points: no degree of freedom is left.");
    if (!analysis.residuals.press)
      notes << QStringLiteral("The leverage of a point is 1: the fit must go through it; PRESS is undefined.");
  }
  return notes.join(QLatin1Char(' '));
}

}  // namespace

StatisticsPage::StatisticsPage() : AnalysisPage(QStringLiteral("pagStatistics"), QStringLiteral("&Statistics")) {
  tblStatistics = new ResultView(QStringLiteral("tblStatistics"), QStringLiteral("Statistics"));
  tblStatistics->setFont(sansSerifFont());
  tblStatistics->setWordWrap(true);
  tblStatistics->setModel(&table_);
  tblStatistics->horizontalHeader()->setStretchLastSection(true);
  lblNote = makeControl<QLabel>(QStringLiteral("lblNote"), "");
  lblNote->setTextFormat(Qt::PlainText);
  lblNote->setWordWrap(true);
  auto* whole = new QVBoxLayout(this);
  whole->addWidget(lblNote);
  whole->addWidget(tblStatistics, 1);
}

void StatisticsPage::showAnalysis(const std::shared_ptr<const Analysis>& analysis) {
  constexpr int kMost = 28;  // characters: a whole number, and the definitions are in view
  table_.showAnalysis(*analysis);
  tblStatistics->fitColumns(kMost);
  tblStatistics->resizeRowsToContents();
  lblNote->setText(noteOn(*analysis));
  tblStatistics->setAccessibleDescription(lblNote->text());
}

// The definitions take the width that is left.
void StatisticsPage::resizeEvent(QResizeEvent* event) {
  AnalysisPage::resizeEvent(event);
  tblStatistics->resizeRowsToContents();
}

}  // namespace tavimor
