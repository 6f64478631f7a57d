#include "ui/analysis/degrees_page.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QVBoxLayout>

#include "analysis/figure_texts.h"
#include "ui/controls/make_control.h"

namespace tavimor {

namespace {

QString noteOn(const Analysis& analysis, const DegreeSearch& degrees) {
  if (combinationsUpTo(largestDegrees(analysis.problem())) > kMostCombinations)
    return QStringLiteral("There are more than %1 combinations of degrees: too many to look through.")
        .arg(kMostCombinations);
  for (const DegreeCombination& one : degrees.combinations) {
    if (!one.recommended) continue;
    const QString text = QString::fromStdString(degreesText(analysis.problem(), one.degrees));
    return QStringLiteral("Recommended: %1, with %2 coefficients. A double click puts degrees into the fields.")
        .arg(text)
        .arg(one.statistics.terms);
  }
  if (!degrees.combinations.empty())
    return QStringLiteral("No combination can be recommended: there are too few points to compare any.");
  return QStringLiteral("No map of degrees: %1.")
      .arg(QString::fromStdString(reasonText(degrees.finding, analysis.problem())));
}

}  // namespace

DegreesPage::DegreesPage(AnalysisLink& link, DegreesPicture* picture)
    : AnalysisPage(QStringLiteral("pagDegrees"), QStringLiteral("&Degrees")), link_(link), picture_(picture) {
  tblDegrees = new ResultView(QStringLiteral("tblDegrees"), QStringLiteral("Combinations of degrees"));
  tblDegrees->showTable(table_);
  lblNote = makeControl<QLabel>(QStringLiteral("lblNote"), "");
  lblNote->setTextFormat(Qt::PlainText);
  lblNote->setWordWrap(true);
  chkAll = makeControl<QCheckBox>(QStringLiteral("chkAll"), "Show &all, also those that others beat");
  splitter_ = new QSplitter(Qt::Vertical);
  splitter_->addWidget(tblDegrees);
  auto* foot = new QHBoxLayout;
  foot->addWidget(lblNote, 1);
  foot->addWidget(chkAll);
  auto* whole = new QVBoxLayout(this);
  whole->addWidget(splitter_, 1);
  whole->addLayout(foot);
  connect(chkAll, &QCheckBox::toggled, this, &DegreesPage::showTable);
  connect(tblDegrees, &QTableView::activated, this, &DegreesPage::chooseRow);
  if (picture_ == nullptr) return;
  splitter_->addWidget(picture_);
  connect(picture_, &DegreesPicture::chosen, &link_,
          [this](const PerVariable<Long>& degrees) { emit link_.degreesWanted(degrees, Then::Wait); });
}

void DegreesPage::showAnalysis(const std::shared_ptr<const Analysis>& analysis) {
  analysis_ = analysis;
  auto none = std::make_shared<DegreeSearch>();
  none->finding = analysis->opinion.precise.finding;
  degrees_ = none;
  showTable();
  lblNote->setText(asksForDegrees() ? QStringLiteral("Looking for degrees ...") : noteOn(*analysis_, *degrees_));
}

void DegreesPage::showDegrees(const std::shared_ptr<const DegreeSearch>& degrees) {
  degrees_ = degrees;
  showTable();
  lblNote->setText(noteOn(*analysis_, *degrees_));
  tblDegrees->setAccessibleDescription(lblNote->text());
}

void DegreesPage::showTable() {
  if (analysis_ == nullptr) return;
  table_.showDegrees(analysis_, degrees_, chkAll->isChecked() ? Combinations::All : Combinations::Unbeaten);
  tblDegrees->fitColumns();
  if (picture_ != nullptr) picture_->showDegrees(analysis_, degrees_);
}

void DegreesPage::chooseRow(const QModelIndex& index) {
  emit link_.degreesWanted(table_.combinationAt(index.row()).degrees, Then::Wait);
}

void DegreesPage::saveChoices(QSettings& settings) const {
  const QHeaderView* header = tblDegrees->horizontalHeader();
  settings.setValue(QStringLiteral("all"), chkAll->isChecked());
  settings.setValue(QStringLiteral("sortColumn"), header->sortIndicatorSection());
  settings.setValue(QStringLiteral("sortOrder"), header->sortIndicatorOrder());
  settings.setValue(QStringLiteral("splitter"), splitter_->saveState());
}

void DegreesPage::restoreChoices(QSettings& settings) {
  chkAll->setChecked(settings.value(QStringLiteral("all")).toBool());
  tblDegrees->horizontalHeader()->setSortIndicator(
      settings.value(QStringLiteral("sortColumn"), -1).toInt(),
      static_cast<Qt::SortOrder>(settings.value(QStringLiteral("sortOrder"), Qt::AscendingOrder).toInt()));
  splitter_->restoreState(settings.value(QStringLiteral("splitter")).toByteArray());
}

}  // namespace tavimor
