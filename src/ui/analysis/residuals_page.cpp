#include "ui/analysis/residuals_page.h"

#include <utility>

#include "analysis/pictures/round_numbers.h"
#include "ui/controls/fonts.h"
#include "ui/pictures/drawings.h"

namespace tavimor {

ResidualsPage::ResidualsPage(AnalysisLink& link, std::shared_ptr<ShownFits> fits)
    : PicturePage(QStringLiteral("pagResiduals"), QStringLiteral("&Residuals"), QStringLiteral("picResiduals"), link,
                  std::move(fits)) {
  cboVariable = addChoice("cboVariable", "Agai&nst");
  choices().addStretch(1);
  lstLargest = new QListView;
  lstLargest->setObjectName(QStringLiteral("lstLargest"));
  lstLargest->setAccessibleName(QStringLiteral("The largest residuals"));
  lstLargest->setEditTriggers(QAbstractItemView::NoEditTriggers);
  lstLargest->setFont(sansSerifFont());
  lstLargest->setModel(&largest_);
  lstLargest->setMaximumWidth(260);
  middle().addWidget(lstLargest);
  drawAfter(cboVariable);
  connect(lstLargest->selectionModel(), &QItemSelectionModel::currentChanged, this,
          [this](const QModelIndex& row) { this->link().selectPoint(pointOfRow(row)); });
  connect(lstLargest, &QListView::activated, this, [this](const QModelIndex& row) {
    if (const auto point = pointOfRow(row)) emit this->link().functionWanted(*point);
  });
  connect(&this->fits(), &ShownFits::residualsMade, this, &ResidualsPage::takeResiduals);
}

void ResidualsPage::takeProblem() {
  residuals_ = nullptr;
  largest_.setStringList({});
  offerVariables(*cboVariable, [](Long) { return true; });
  fits().askForResiduals();
}

void ResidualsPage::takeResiduals(const std::shared_ptr<const ResidualPictures>& residuals) {
  residuals_ = residuals;
  QStringList rows;
  for (const std::size_t number : residuals->largest)
    rows << QString::fromStdString(shortNumber(fit()->residual.data()[number]) + " at " +
                                   gridPointText(problem(), gridIndexAt(problem().F.last(), number)));
  largest_.setStringList(rows);
  draw();
}

std::optional<PerVariable<Long>> ResidualsPage::pointOfRow(const QModelIndex& row) const {
  if (residuals_ == nullptr || !row.isValid()) return std::nullopt;
  return gridIndexAt(problem().F.last(), residuals_->largest[static_cast<std::size_t>(row.row())]);
}

void ResidualsPage::draw() {
  if (residuals_ != nullptr) showResiduals(picture(), fit(), residuals_, chosen(*cboVariable));
}

void ResidualsPage::saveChoices(QSettings& settings) const { saveChoice(settings, *cboVariable); }

void ResidualsPage::restoreChoices(QSettings& settings) { restoreChoice(settings, *cboVariable); }

}  // namespace tavimor
