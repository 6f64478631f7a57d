#pragma once

#include <QLabel>
#include <QPushButton>

#include "ui/analysis/analysis_link.h"
#include "ui/analysis/analysis_page.h"
#include "ui/analysis/coefficient_table.h"

namespace tavimor {

/// Every coefficient beside the precise one.
class CoefficientsPage : public AnalysisPage {
  Q_OBJECT

 public:
  explicit CoefficientsPage(AnalysisLink& link);

  void showAnalysis(const std::shared_ptr<const Analysis>& analysis) override;
  void saveChoices(QSettings& settings) const override;
  void restoreChoices(QSettings& settings) override;

 private:
  CoefficientTable table_;
  ResultView* tblCoefficients;
  QLabel* lblNote;
  QPushButton* cmdUsePrecise;
};

}  // namespace tavimor
