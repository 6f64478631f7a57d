#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QSplitter>

#include "ui/analysis/analysis_link.h"
#include "ui/analysis/analysis_page.h"
#include "ui/analysis/degree_table.h"

namespace tavimor {

/// What stands beside the table of degrees: a picture of the same map.
class DegreesPicture : public QWidget {
  Q_OBJECT

 public:
  /// Nothing to show where the map has no combinations.
  virtual void showDegrees(const std::shared_ptr<const Analysis>& analysis,
                           const std::shared_ptr<const DegreeSearch>& degrees) = 0;

 signals:
  /// A combination was double-clicked.
  void chosen(const PerVariable<Long>& degrees);
};

/// Would other degrees do? A double click, or Enter, puts the degrees of a row into the fields of the main window.
class DegreesPage : public AnalysisPage {
  Q_OBJECT

 public:
  /// With a picture beside the table, or without one.
  explicit DegreesPage(AnalysisLink& link, DegreesPicture* picture = nullptr);

  void showAnalysis(const std::shared_ptr<const Analysis>& analysis) override;
  void showDegrees(const std::shared_ptr<const DegreeSearch>& degrees) override;
  bool asksForDegrees() const override { return analysis_ == nullptr || analysis_->opinion.isExact(); }
  void saveChoices(QSettings& settings) const override;
  void restoreChoices(QSettings& settings) override;

 private:
  void showTable();
  void chooseRow(const QModelIndex& index);

  AnalysisLink& link_;
  DegreeTable table_;
  ResultView* tblDegrees;
  QLabel* lblNote;
  QCheckBox* chkAll;
  QSplitter* splitter_;
  DegreesPicture* picture_;
  std::shared_ptr<const Analysis> analysis_;
  std::shared_ptr<const DegreeSearch> degrees_;
};

}  // namespace tavimor
