#pragma once

#include <QSettings>
#include <QWidget>
#include <memory>

namespace tavimor {

struct Analysis;
struct DegreeSearch;

/// A page of the analysis window. It shows what a thread has made and nobody changes any more, and holds nothing else.
class AnalysisPage : public QWidget {
  Q_OBJECT

 public:
  /// The name is the page's objectName, "pagCoefficients"; the title stands on its tab, with the key behind "&".
  AnalysisPage(const QString& name, const QString& title);

  const QString& title() const { return title_; }

  /// Shows an analysis in the place of the one before: when the page is looked at, not before. One without an exact
  /// solution, or with nothing listed, comes as well: the page then says what it cannot show.
  virtual void showAnalysis(const std::shared_ptr<const Analysis>& analysis) = 0;

  /// How well other degrees would fit: comes after the analysis of the same fit, and for a page that asks only.
  virtual void showDegrees(const std::shared_ptr<const DegreeSearch>& /*degrees*/) {}
  virtual bool asksForDegrees() const { return false; }

  /// What is shown is no longer what the fields and the data give: it stays readable, in the colours of what is
  /// disabled, until the next analysis.
  void setGrey(bool isGrey);

  /// What the user has chosen in this page, kept between runs in a group of the page's own.
  virtual void saveChoices(QSettings& /*settings*/) const {}
  virtual void restoreChoices(QSettings& /*settings*/) {}

 private:
  QString title_;
};

}  // namespace tavimor
