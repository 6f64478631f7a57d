#pragma once

#include "ui/analysis/picture_page.h"

namespace tavimor {

/// The fit, the given values or the residuals over two variables, the others held.
class MapPage : public PicturePage {
  Q_OBJECT

 public:
  MapPage(AnalysisLink& link, std::shared_ptr<ShownFits> fits);

  void saveChoices(QSettings& settings) const override;
  void restoreChoices(QSettings& settings) override;

 protected:
  void draw() override;
  void takeProblem() override;

 private:
  void offerSecond();

  QComboBox *cboShown, *cboX, *cboY;
};

}  // namespace tavimor
