#pragma once

#include <QComboBox>
#include <QHBoxLayout>
#include <QSignalBlocker>

#include "ui/analysis/analysis_link.h"
#include "ui/analysis/analysis_page.h"
#include "ui/analysis/held_variable.h"
#include "ui/analysis/shown_fits.h"
#include "ui/pictures/picture.h"

namespace tavimor {

/// What the pages with a picture share: a row of choices, where the other variables are held, the picture, the place
/// under the pointer. The point that is selected is marked, and the other variables are held where it lies; a double
/// click on a point asks for the function window there, Escape selects none.
class PicturePage : public AnalysisPage {
  Q_OBJECT

 public:
  PicturePage(const QString& name, const QString& title, const QString& picture, AnalysisLink& link,
              std::shared_ptr<ShownFits> fits);

  void showAnalysis(const std::shared_ptr<const Analysis>& analysis) override;

 protected:
  /// Draws the picture of fit(), by the choices. There is a fit.
  virtual void draw() = 0;
  /// A fit has come: the lists of choices follow.
  virtual void takeProblem() = 0;

  const std::shared_ptr<const ShownFit>& fit() const { return fit_; }
  const Problem& problem() const { return fit_->problem(); }
  Picture& picture() { return *picture_; }
  QHBoxLayout& choices() { return *choices_; }
  QHBoxLayout& middle() { return *middle_; }
  ShownFits& fits() { return *fits_; }
  AnalysisLink& link() { return link_; }

  /// A list of choices with its caption, in the row of choices.
  QComboBox* addChoice(const char* name, const char* caption);
  void drawAfter(const QComboBox* choice);
  static void saveChoice(QSettings& settings, const QComboBox& list);
  static void restoreChoice(QSettings& settings, QComboBox& list);

  /// The names of the variables, those that pass; the chosen one stays. Each item's data is its number.
  template <class Passes>
  void offerVariables(QComboBox& list, Passes passes);
  static Long chosen(const QComboBox& list) { return list.currentData().toInt(); }

  void makeHeldVariables();
  void showHeld(const PerVariable<bool>& isHeld);
  PerVariable<double> heldValues() const;

 private:
  QString nameOf(Long k) const;
  void layOut();
  void takeFit(const std::shared_ptr<const ShownFit>& fit);
  void stepHeld(Qt::Key key);
  void showSelected();
  bool holdAtSelected();
  std::optional<std::size_t> selectedNumber() const;
  std::optional<PerVariable<Long>> indexOf(std::size_t number) const;

  AnalysisLink& link_;
  std::shared_ptr<ShownFits> fits_;
  Picture* picture_;
  QHBoxLayout *choices_, *middle_;
  QVBoxLayout* held_;
  ElidedLabel* lblPlace;
  PerVariable<HeldVariable*> heldVariables_{};  // null in a page that holds none
  std::shared_ptr<const Analysis> analysis_;
  std::shared_ptr<const ShownFit> fit_;
};

template <class Passes>
void PicturePage::offerVariables(QComboBox& list, Passes passes) {
  const QSignalBlocker quiet(&list);
  const QVariant before = list.currentData();
  list.clear();
  for (Long k = 0; k <= problem().LastVar; ++k)
    if (passes(k)) list.addItem(nameOf(k), static_cast<int>(k));
  list.setCurrentIndex(std::max(0, list.findData(before)));
}

}  // namespace tavimor
