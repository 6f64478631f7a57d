#pragma once

#include <QListView>
#include <QStringListModel>

#include "ui/analysis/picture_page.h"

namespace tavimor {

/// The residuals in four pictures, and the largest ones with their grid points.
class ResidualsPage : public PicturePage {
  Q_OBJECT

 public:
  ResidualsPage(AnalysisLink& link, std::shared_ptr<ShownFits> fits);

  void saveChoices(QSettings& settings) const override;
  void restoreChoices(QSettings& settings) override;

 protected:
  void draw() override;
  void takeProblem() override;

 private:
  void takeResiduals(const std::shared_ptr<const ResidualPictures>& residuals);
  std::optional<PerVariable<Long>> pointOfRow(const QModelIndex& row) const;

  QComboBox* cboVariable;
  QListView* lstLargest;
  QStringListModel largest_;
  std::shared_ptr<const ResidualPictures> residuals_;
};

}  // namespace tavimor
