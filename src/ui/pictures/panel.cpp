#include "ui/pictures/panel.h"

#include <cmath>

#include "analysis/pictures/round_numbers.h"
#include "runtime/number_text.h"

namespace tavimor {

namespace {

constexpr double kReach = 8.0;    // pixels in which a click finds a point
constexpr int kLongestName = 60;  // characters

QString shortened(const QString& name) {
  return name.size() <= kLongestName ? name : name.left(kLongestName - 1) + QChar(0x2026);
}

QString axisName(const QString& name, int exponent) {
  return exponent == 0 ? shortened(name) : QStringLiteral("%1 / 1E%2").arg(shortened(name)).arg(exponent);
}

// What the library can draw; a gap in the place of anything else.
double drawable(double value) { return std::fabs(value) < 1e200 ? value : NAN; }

// A margin about what is in view, so that nothing lies on the frame.
QCPRange withMargin(double lower, double upper) {
  const double width = upper - lower;
  if (!(width > 1e-200)) {
    const double margin = std::max(std::fabs(lower) / 20, lower == 0.0 ? 1.0 : 1e-190);
    return {lower - margin, upper + margin};
  }
  return {lower - width / 25, upper + width / 25};
}

}  // namespace

QString NumberTicker::getTickLabel(double tick, const QLocale& /*locale*/, QChar /*formatChar*/, int /*precision*/) {
  return QString::fromStdString(numberText(tick));
}

Panel::Panel(QCPAxisRect& rect, const AxisView& x, const AxisView& y, const Theme& theme)
    : rect_(&rect),
      x_(rect.axis(QCPAxis::atBottom)),
      y_(rect.axis(QCPAxis::atLeft)),
      theme_(theme),
      xName_(x.name),
      yName_(y.name),
      xExponent_(axisExponent(x.range.lower, x.range.upper)),
      yExponent_(axisExponent(y.range.lower, y.range.upper)) {
  homeX_ = withMargin(inX(x.range.lower), inX(x.range.upper));
  homeY_ = withMargin(inY(y.range.lower), inY(y.range.upper));
  x_->setLabel(axisName(x.name, xExponent_));
  y_->setLabel(axisName(y.name, yExponent_));
  for (QCPAxis* axis : rect.axes()) {
    const QSharedPointer<QCPAxisTicker> ticker(new NumberTicker);
    ticker->setTickCount(axis == x_ ? x.numbers : y.numbers);
    axis->setTicker(ticker);
    axis->setBasePen(QPen(theme.text));
    axis->setTickPen(QPen(theme.text));
    axis->setSubTickPen(QPen(theme.text));
    axis->setTickLabelColor(theme.text);
    axis->setLabelColor(theme.text);
    axis->grid()->setPen(QPen(theme.grid));
    axis->grid()->setZeroLinePen(QPen(theme.grid, 1.5));
    axis->setTickLabelFont(x_->parentPlot()->font());
    axis->setLabelFont(x_->parentPlot()->font());
  }
  rect.setupFullAxesBox();
  rect.setRangeZoom(Qt::Horizontal | Qt::Vertical);
  rect.setRangeDrag(Qt::Horizontal | Qt::Vertical);
  showAll();
}

double Panel::inX(double value) const { return drawable(dividedByPower(value, xExponent_)); }
double Panel::inY(double value) const { return drawable(dividedByPower(value, yExponent_)); }

void Panel::showAll() {
  x_->setRange(homeX_);
  y_->setRange(homeY_);
}

bool Panel::showsAll() const { return x_->range() == homeX_ && y_->range() == homeY_; }

void Panel::setRanges(const QCPRange& x, const QCPRange& y) {
  x_->setRange(x);
  y_->setRange(y);
}

void Panel::line(std::span<const double> x, std::span<const double> y, const QPen& pen, const QString& legend) {
  QCPGraph* graph = x_->parentPlot()->addGraph(x_, y_);
  graph->setPen(pen);
  graph->setAntialiased(true);
  for (std::size_t n = 0; n < x.size(); ++n) graph->addData(inX(x[n]), inY(y[n]));
  graph->setName(shortened(legend));
}

void Panel::band(std::span<const double> x, std::span<const double> low, std::span<const double> high,
                 const QColor& colour) {
  line(x, low, Qt::NoPen);
  QCPGraph* lower = x_->parentPlot()->graph();
  line(x, high, Qt::NoPen);
  QCPGraph* upper = x_->parentPlot()->graph();
  upper->setBrush(colour);
  upper->setChannelFillGraph(lower);
}

void Panel::points(const std::vector<PicturePoint>& points, const QColor& colour, double size, const QString& legend) {
  QCPGraph* graph = x_->parentPlot()->addGraph(x_, y_);
  graph->setLineStyle(QCPGraph::lsNone);
  graph->setScatterStyle(QCPScatterStyle(QCPScatterStyle::ssDisc, colour, colour, size));
  graph->setPen(QPen(colour));
  graph->setName(legend);
  QVector<double> keys, values;
  for (const PicturePoint& point : points) {
    points_.push_back({inX(point.x), inY(point.y), point.number});
    keys << points_.back().x;
    values << points_.back().y;
  }
  graph->setData(keys, values);
}

void Panel::curve(std::span<const double> x, std::span<const double> y, const QPen& pen) {
  auto* curve = new QCPCurve(x_, y_);
  curve->setPen(pen);
  for (std::size_t n = 0; n < x.size(); ++n) curve->addData(inX(x[n]), inY(y[n]));
}

void Panel::bars(std::span<const double> middle, std::span<const double> height, double width, const QColor& colour) {
  auto* bars = new QCPBars(x_, y_);
  bars->setWidth(inX(width));
  bars->setPen(QPen(theme_.background));
  bars->setBrush(colour);
  for (std::size_t n = 0; n < middle.size(); ++n) bars->addData(inX(middle[n]), inY(height[n]));
}

void Panel::text(double x, double y, const QString& text) {
  auto* item = new QCPItemText(x_->parentPlot());
  item->setClipAxisRect(rect_);
  item->position->setAxes(x_, y_);
  item->position->setAxisRect(rect_);
  item->position->setCoords(inX(x), inY(y));
  item->setText(text);
  item->setColor(theme_.text);
  item->setFont(x_->parentPlot()->font());
  item->setBrush(theme_.background);
}

void Panel::shade(double from, double to) {
  auto* item = new QCPItemRect(x_->parentPlot());
  item->setClipAxisRect(rect_);
  item->setPen(Qt::NoPen);
  item->setBrush(theme_.shade);
  item->setLayer(QStringLiteral("background"));
  for (QCPItemPosition* corner : {item->topLeft, item->bottomRight}) {
    corner->setAxes(x_, y_);
    corner->setAxisRect(rect_);
    corner->setTypeX(QCPItemPosition::ptPlotCoords);
    corner->setTypeY(QCPItemPosition::ptAxisRectRatio);
  }
  item->topLeft->setCoords(inX(from), 0.0);
  item->bottomRight->setCoords(inX(to), 1.0);
}

std::optional<PicturePoint> Panel::inAxes(const std::optional<std::size_t>& number) const {
  if (!number) return std::nullopt;
  for (const PicturePoint& point : points_)
    if (point.number == *number) return point;
  const std::optional<PicturePoint> hidden = placeOf_ ? placeOf_(*number) : std::nullopt;
  if (!hidden) return std::nullopt;
  return PicturePoint{inX(hidden->x), inY(hidden->y), hidden->number};
}

void Panel::mark(const std::optional<std::size_t>& number) {
  if (mark_ != nullptr) x_->parentPlot()->removeGraph(mark_);
  mark_ = nullptr;
  const std::optional<PicturePoint> point = inAxes(number);
  if (!point) return;
  mark_ = x_->parentPlot()->addGraph(x_, y_);
  mark_->setLineStyle(QCPGraph::lsNone);
  mark_->setScatterStyle(QCPScatterStyle(QCPScatterStyle::ssCircle, QPen(theme_.warning, 2.5), Qt::NoBrush, 14));
  mark_->addData(point->x, point->y);
  mark_->setName({});
}

QString Panel::placeText(const QPointF& place) const {
  const auto at = [](const QCPAxis& axis, double pixel) {
    return QString::fromStdString(shortNumber(axis.pixelToCoord(pixel)));
  };
  return QStringLiteral("%1 = %2, %3 = %4")
      .arg(axisName(xName_, xExponent_), at(*x_, place.x()), axisName(yName_, yExponent_), at(*y_, place.y()));
}

const PicturePoint* Panel::pointAt(const QPointF& place) const {
  const PicturePoint* nearest = nullptr;
  double least = kReach;
  for (const PicturePoint& point : points_) {
    const double distance = std::hypot(x_->coordToPixel(point.x) - place.x(), y_->coordToPixel(point.y) - place.y());
    if (distance < least) {
      least = distance;
      nearest = &point;
    }
  }
  return nearest;
}

}  // namespace tavimor
