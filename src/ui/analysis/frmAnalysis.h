#pragma once

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTabWidget>
#include <memory>
#include <vector>

#include "ui/controls/form.h"

namespace tavimor {

class AnalysisPage;
struct Analysis;
struct DegreeSearch;

/// The analysis window, beside the main window: what the fit is worth, in a sentence and in pages. It shows what it is
/// told to and computes nothing.
class frmAnalysis : public Form {
  Q_OBJECT

 public:
  /// The pages from left to right; at least one.
  explicit frmAnalysis(const std::vector<AnalysisPage*>& pages);

  /// An analysis with the sentence on it. The button under `remedy` follows it; none where that is empty.
  void showAnalysis(const std::shared_ptr<const Analysis>& analysis, const QString& verdict, const QString& remedy);
  void showDegrees(const std::shared_ptr<const DegreeSearch>& degrees);

  /// What is shown is no longer the fit, or not yet: in words why. The pages grey.
  void showNoFit(const QString& why);

  /// The share of an analysis that is done, 0..1; nothing is shown of a short one.
  void showProgress(double share);

 signals:
  void remedyWanted();
  /// A page is looked at that asks for the degrees of the analysis on show.
  void degreesNeeded();

 private:
  void makeControls();
  void addPages(const std::vector<AnalysisPage*>& pages);
  void layOut();
  void showCurrentPage();
  AnalysisPage& currentPage() const;
  void say(const QString& verdict, const QString& remedy);
  void setGrey(bool isGrey);
  void restoreChoices();
  void saveChoices() const;
  void Form_Unload() override { saveChoices(); }

  QLabel* lblVerdict;
  QPushButton* cmdRemedy;
  QProgressBar* prgAnalysis;
  QTabWidget* tabPages;
  std::vector<AnalysisPage*> pages_;
  std::vector<AnalysisPage*> showing_, showingDegrees_;  // those that have been given what is on show
  std::shared_ptr<const Analysis> analysis_;
  std::shared_ptr<const DegreeSearch> degrees_;
  bool hasAskedForDegrees_ = false;
};

}  // namespace tavimor
