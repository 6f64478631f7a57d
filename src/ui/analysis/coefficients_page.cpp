#include "ui/analysis/coefficients_page.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QVBoxLayout>

#include "ui/analysis/digits_bar.h"
#include "ui/controls/make_control.h"

namespace tavimor {

namespace {

QString noteOn(const Analysis& analysis) {
  if (!analysis.opinion.isExact())
    return QStringLiteral("There is no exact solution to compare with: %1.")
        .arg(QString::fromStdString(reasonText(analysis.opinion.precise.finding, analysis.problem())));
  if (analysis.statistics.noFreedom)
    return QStringLiteral("There are as many coefficients as points: no standard errors, t, p and intervals.");
  if (analysis.statistics.residualsAreZero)
    return QStringLiteral("The residuals are 0 as far as can be told: there is nothing to compute t and p from.");
  if (analysis.listed.from == ListedFrom::PreciseSolution)
    return QStringLiteral("Listed are the precise coefficients.");
  return QStringLiteral("Grey: no more than the rounding of the data can do.");
}

bool hasOtherCoefficientsToUse(const Analysis& analysis) {
  return analysis.opinion.isExact() && analysis.listed.hasListed() &&
         analysis.listed.from != ListedFrom::PreciseSolution;
}

}  // namespace

CoefficientsPage::CoefficientsPage(AnalysisLink& link)
    : AnalysisPage(QStringLiteral("pagCoefficients"), QStringLiteral("&Coefficients")) {
  tblCoefficients = new ResultView(QStringLiteral("tblCoefficients"), QStringLiteral("Coefficients"));
  tblCoefficients->showTable(table_);
  tblCoefficients->setItemDelegateForColumn(CoefficientTable::RightDigits, new DigitsBar(tblCoefficients));
  lblNote = makeControl<QLabel>(QStringLiteral("lblNote"), "");
  lblNote->setTextFormat(Qt::PlainText);
  lblNote->setWordWrap(true);
  cmdUsePrecise = makeButton(QStringLiteral("cmdUsePrecise"), "&Use precise coefficients");
  cmdUsePrecise->setToolTip(
      QStringLiteral("Puts them in the place of the listed ones, for evaluations, saving and export, until Compute"));
  connect(cmdUsePrecise, &QPushButton::clicked, &link, &AnalysisLink::preciseCoefficientsWanted);
  auto* foot = new QHBoxLayout;
  foot->addWidget(lblNote, 1);
  foot->addWidget(cmdUsePrecise);
  auto* whole = new QVBoxLayout(this);
  whole->addWidget(tblCoefficients, 1);
  whole->addLayout(foot);
}

void CoefficientsPage::showAnalysis(const std::shared_ptr<const Analysis>& analysis) {
  table_.showAnalysis(analysis);
  tblCoefficients->fitColumns();
  lblNote->setText(noteOn(*analysis));
  tblCoefficients->setAccessibleDescription(lblNote->text());
  cmdUsePrecise->setEnabled(hasOtherCoefficientsToUse(*analysis));
}

void CoefficientsPage::saveChoices(QSettings& settings) const {
  const QHeaderView* header = tblCoefficients->horizontalHeader();
  settings.setValue(QStringLiteral("sortColumn"), header->sortIndicatorSection());
  settings.setValue(QStringLiteral("sortOrder"), header->sortIndicatorOrder());
}

void CoefficientsPage::restoreChoices(QSettings& settings) {
  tblCoefficients->horizontalHeader()->setSortIndicator(
      settings.value(QStringLiteral("sortColumn"), -1).toInt(),
      static_cast<Qt::SortOrder>(settings.value(QStringLiteral("sortOrder"), Qt::AscendingOrder).toInt()));
}

}  // namespace tavimor
