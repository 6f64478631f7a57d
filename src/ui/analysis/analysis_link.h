#pragma once

#include <QObject>
#include <optional>

#include "model/per_variable.h"
#include "runtime/long.h"

namespace tavimor {

/// What follows when degrees have been put into the fields of the main window.
enum class Then { Wait, Compute };

/// What the pages of the analysis window share: the grid point that is selected in all of them, and what they ask of
/// the main window.
class AnalysisLink : public QObject {
  Q_OBJECT

 public:
  const std::optional<PerVariable<Long>>& selectedPoint() const { return selected_; }
  void selectPoint(const std::optional<PerVariable<Long>>& index);

 signals:
  /// selectedPoint() is another one.
  void pointSelected();

  /// "*" into the field of every centre, and a fit.
  void middlesWanted();
  void degreesWanted(const PerVariable<Long>& degrees, Then then);
  void preciseCoefficientsWanted();
  /// The function window, open at a point of the grid.
  void functionWanted(const PerVariable<Long>& index);

 private:
  std::optional<PerVariable<Long>> selected_;
};

}  // namespace tavimor
