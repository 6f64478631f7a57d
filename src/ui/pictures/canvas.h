#pragma once

#include <qcustomplot.h>

#include <memory>
#include <vector>

#include "analysis/pictures/colour_scale.h"
#include "ui/pictures/panel.h"

namespace tavimor {

/// Where a drawing is made: panels in rows and columns.
class Canvas {
 public:
  Canvas(QCustomPlot& plot, const Theme& theme, std::vector<std::unique_ptr<Panel>>& panels);

  Panel& panel(int row, int column, const AxisView& x, const AxisView& y);

  /// The colours of a sheet in a panel, with their scale beside it.
  void colours(Panel& panel, const Sheet& sheet, ColourScale scale, const ColourRange& range, const QString& name);

  /// A legend in the upper right corner of a panel.
  void legend(Panel& panel);

  /// A sentence in the place of a picture.
  void message(const QString& text);

  const Theme& theme() const { return theme_; }

 private:
  QCustomPlot& plot_;
  Theme theme_;
  QCPLayoutGrid* grid_;
  std::vector<std::unique_ptr<Panel>>& panels_;
};

}  // namespace tavimor
