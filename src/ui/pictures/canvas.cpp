#include "ui/pictures/canvas.h"

#include <cmath>

#include "analysis/pictures/round_numbers.h"

namespace tavimor {

namespace {

QCPColorGradient gradientOf(ColourScale scale) {
  QCPColorGradient gradient;
  gradient.clearColorStops();
  const std::span<const Colour> stops = colourStops(scale);
  for (std::size_t n = 0; n < stops.size(); ++n)
    gradient.setColorStopAt(static_cast<double>(n) / static_cast<double>(stops.size() - 1),
                            QColor(stops[n].red, stops[n].green, stops[n].blue));
  gradient.setNanHandling(QCPColorGradient::nhTransparent);
  return gradient;
}

}  // namespace

Canvas::Canvas(QCustomPlot& plot, const Theme& theme, std::vector<std::unique_ptr<Panel>>& panels)
    : plot_(plot), theme_(theme), grid_(new QCPLayoutGrid), panels_(panels) {
  plot_.plotLayout()->addElement(plot_.plotLayout()->rowCount(), 0, grid_);
}

Panel& Canvas::panel(int row, int column, const AxisView& x, const AxisView& y) {
  auto* rect = new QCPAxisRect(&plot_);
  grid_->addElement(row, column, rect);
  panels_.push_back(std::make_unique<Panel>(*rect, x, y, theme_));
  return *panels_.back();
}

void Canvas::colours(Panel& panel, const Sheet& sheet, ColourScale scale, const ColourRange& range,
                     const QString& name) {
  const int exponent = axisExponent(range.least, range.largest);
  auto* map = new QCPColorMap(&panel.xAxis(), &panel.yAxis());
  const int columns = static_cast<int>(sheet.x.size()), rows = static_cast<int>(sheet.y.size());
  map->data()->setSize(columns, rows);
  map->data()->setRange({panel.inX(sheet.x.front()), panel.inX(sheet.x.back())},
                        {panel.inY(sheet.y.front()), panel.inY(sheet.y.back())});
  for (int j = 0; j < rows; ++j)
    for (int i = 0; i < columns; ++i) map->data()->setCell(i, j, dividedByPower(sheet.at(i, j), exponent));
  map->setInterpolate(false);
  auto* colourScale = new QCPColorScale(&plot_);
  grid_->addElement(grid_->rowCount() - 1, grid_->columnCount(), colourScale);
  map->setColorScale(colourScale);
  map->setGradient(gradientOf(scale));
  map->setDataRange({dividedByPower(range.least, exponent), dividedByPower(range.largest, exponent)});
  QCPAxis* axis = colourScale->axis();
  axis->setTicker(QSharedPointer<QCPAxisTicker>(new NumberTicker));
  axis->setLabel(exponent == 0 ? name : QStringLiteral("%1 / 1E%2").arg(name).arg(exponent));
  for (const auto set : {&QCPAxis::setLabelColor, &QCPAxis::setTickLabelColor}) (axis->*set)(theme_.text);
  for (const auto set : {&QCPAxis::setLabelFont, &QCPAxis::setTickLabelFont}) (axis->*set)(plot_.font());
  colourScale->setRangeDrag(false);
  colourScale->setRangeZoom(false);
  auto* margins = new QCPMarginGroup(&plot_);
  panel.rect().setMarginGroup(QCP::msBottom | QCP::msTop, margins);
  colourScale->setMarginGroup(QCP::msBottom | QCP::msTop, margins);
}

void Canvas::legend(Panel& panel) {
  auto* legend = new QCPLegend;
  panel.rect().insetLayout()->addElement(legend, Qt::AlignTop | Qt::AlignRight);
  legend->setLayer(QStringLiteral("legend"));
  legend->setBrush(theme_.background);
  legend->setBorderPen(QPen(theme_.grid));
  legend->setTextColor(theme_.text);
  legend->setFont(plot_.font());
  for (QCPGraph* graph : panel.rect().graphs())
    if (!graph->name().isEmpty()) graph->addToLegend(legend);
}

void Canvas::message(const QString& text) {
  auto* element = new QCPTextElement(&plot_, text, plot_.font());
  element->setTextFlags(Qt::AlignCenter | Qt::TextWordWrap);
  element->setTextColor(theme_.text);
  grid_->addElement(0, 0, element);
}

}  // namespace tavimor
