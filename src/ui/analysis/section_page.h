#pragma once

#include "ui/analysis/picture_page.h"

namespace tavimor {

/// The fit along one variable, the others held.
class SectionPage : public PicturePage {
  Q_OBJECT

 public:
  SectionPage(AnalysisLink& link, std::shared_ptr<ShownFits> fits);

  void saveChoices(QSettings& settings) const override;
  void restoreChoices(QSettings& settings) override;

 protected:
  void draw() override;
  void takeProblem() override;

 private:
  void offerFamilies();

  QComboBox *cboAlong, *cboFamily;
};

}  // namespace tavimor
