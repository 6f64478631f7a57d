#pragma once

#include <qcustomplot.h>

#include <QSharedPointer>
#include <functional>
#include <optional>
#include <span>
#include <vector>

#include "analysis/pictures/contour_lines.h"
#include "analysis/pictures/grid_values.h"
#include "analysis/pictures/thinned_points.h"
#include "ui/pictures/theme.h"

namespace tavimor {

/// A variable along an axis of a panel: its name, what is in view at first, and about how many numbers have room.
struct AxisView {
  QString name;
  ShownRange range;
  int numbers = 5;
};

/// A pair of axes and what is drawn between them. Numbers that a plotting library cannot calculate with are drawn in
/// units of a power of ten, which the axis then names.
class Panel {
 public:
  Panel(QCPAxisRect& rect, const AxisView& x, const AxisView& y, const Theme& theme);

  void line(std::span<const double> x, std::span<const double> y, const QPen& pen, const QString& legend = {});
  void band(std::span<const double> x, std::span<const double> low, std::span<const double> high, const QColor& colour);
  void points(const std::vector<PicturePoint>& points, const QColor& colour, double size, const QString& legend = {});
  void curve(std::span<const double> x, std::span<const double> y, const QPen& pen);
  void bars(std::span<const double> middle, std::span<const double> height, double width, const QColor& colour);
  void text(double x, double y, const QString& text);
  /// A rectangle between two x over the whole height.
  void shade(double from, double to);
  /// The point with this number in the place of the one marked before: where it is drawn, and else where the panel has
  /// been told that it lies.
  void mark(const std::optional<std::size_t>& number);

  /// Where points lie that are not drawn, as there are too many.
  using PlaceOf = std::function<std::optional<PicturePoint>(std::size_t number)>;
  void findMore(PlaceOf placeOf) { placeOf_ = std::move(placeOf); }

  double inX(double value) const;  // in the units of the axis
  double inY(double value) const;

  /// "x = 0.5, f = 3" for a place of the widget.
  QString placeText(const QPointF& place) const;

  /// The nearest of the points within a few pixels; nothing where there is none.
  const PicturePoint* pointAt(const QPointF& place) const;

  void showAll();
  bool showsAll() const;
  void setRanges(const QCPRange& x, const QCPRange& y);
  bool contains(const QPointF& place) const { return rect_->rect().contains(place.toPoint()); }
  QCPAxisRect& rect() const { return *rect_; }
  QCPAxis& xAxis() const { return *x_; }
  QCPAxis& yAxis() const { return *y_; }

 private:
  std::optional<PicturePoint> inAxes(const std::optional<std::size_t>& number) const;

  QCPAxisRect* rect_;
  QCPAxis *x_, *y_;
  Theme theme_;
  QString xName_, yName_;
  int xExponent_, yExponent_;
  QCPRange homeX_, homeY_;
  std::vector<PicturePoint> points_;  // in the units of the axes
  PlaceOf placeOf_;
  QCPGraph* mark_ = nullptr;
};

/// Numbers along an axis: with a point whatever the locale, and as every number of the program is written.
class NumberTicker : public QCPAxisTicker {
 protected:
  QString getTickLabel(double tick, const QLocale& locale, QChar formatChar, int precision) override;
};

}  // namespace tavimor
