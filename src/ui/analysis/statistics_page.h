#pragma once

#include <QLabel>

#include "ui/analysis/analysis_page.h"
#include "ui/analysis/statistic_table.h"

namespace tavimor {

/// The documented figures and those of the textbook side by side.
class StatisticsPage : public AnalysisPage {
  Q_OBJECT

 public:
  StatisticsPage();

  void showAnalysis(const std::shared_ptr<const Analysis>& analysis) override;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  StatisticTable table_;
  ResultView* tblStatistics;
  QLabel* lblNote;
};

}  // namespace tavimor
