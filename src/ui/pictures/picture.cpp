#include "ui/pictures/picture.h"

#include <QKeyEvent>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/pictures/canvas.h"

namespace tavimor {

namespace {

constexpr QSize kLeastSize(240, 160);

QString shortTitle(const QString& title) {
  constexpr int kLongest = 100;
  return title.size() <= kLongest ? title : title.left(kLongest - 1) + QChar(0x2026);
}

}  // namespace

Picture::Picture(const QString& name) : plot_(new QCustomPlot) {
  setObjectName(name);
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(plot_);
  plot_->setMinimumSize(kLeastSize);  // however long its texts are
  plot_->setFocusProxy(this);
  plot_->setAutoAddPlottableToLegend(false);
  plot_->setInteractions(QCP::iRangeDrag | QCP::iRangeZoom);
  plot_->setLocale(QLocale::c());
  connectMouse();
  redraw();
}

Picture::~Picture() = default;

void Picture::connectMouse() {
  const auto panelAt = [this](const QPointF& place) -> Panel* {
    for (const auto& panel : panels_)
      if (panel->contains(place)) return panel.get();
    return nullptr;
  };
  connect(plot_, &QCustomPlot::mouseMove, this, [=, this](const QMouseEvent* event) {
    const Panel* panel = panelAt(event->position());
    emit pointedAt(panel != nullptr ? panel->placeText(event->position()) : QString());
  });
  connect(plot_, &QCustomPlot::mousePress, this, [=, this](const QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const Panel* panel = panelAt(event->position());
    const PicturePoint* point = panel != nullptr ? panel->pointAt(event->position()) : nullptr;
    if (point != nullptr) emit pointClicked(point->number);
  });
  connect(plot_, &QCustomPlot::mouseDoubleClick, this, [=, this](const QMouseEvent* event) {
    const Panel* panel = panelAt(event->position());
    const PicturePoint* point = panel != nullptr ? panel->pointAt(event->position()) : nullptr;
    if (point != nullptr)
      emit pointDoubleClicked(point->number);
    else
      showAll();
  });
  connect(plot_, &QCustomPlot::mouseWheel, this, [this] { isZoomed_ = true; });
  connect(plot_, &QCustomPlot::mouseRelease, this, [this](const QMouseEvent*) {
    for (const auto& panel : panels_) isZoomed_ = isZoomed_ || !panel->showsAll();
  });
}

void Picture::show(const QString& title, const QString& text, Drawing drawing) {
  title_ = title;
  drawing_ = std::move(drawing);
  setAccessibleName(title);
  setAccessibleDescription(text);
  redraw();
}

void Picture::mark(std::optional<std::size_t> number) {
  if (marked_ == number) return;
  marked_ = number;
  for (const auto& panel : panels_) panel->mark(marked_);
  plot_->replot(QCustomPlot::rpQueuedReplot);
}

void Picture::redraw() {
  std::vector<std::unique_ptr<Panel>> before = std::move(panels_);
  panels_.clear();
  std::vector<std::pair<QCPRange, QCPRange>> ranges;
  std::vector<QString> labels;
  for (const auto& panel : before) {
    ranges.emplace_back(panel->xAxis().range(), panel->yAxis().range());
    labels.push_back(panel->xAxis().label() + QLatin1Char('\n') + panel->yAxis().label());
  }
  before.clear();
  plot_->clearPlottables();
  plot_->clearItems();
  plot_->plotLayout()->clear();
  const Theme theme = paper_ ? *paper_ : screenTheme(palette());
  plot_->setBackground(QBrush(theme.background));
  plot_->setFont(font());
  auto* title = new QCPTextElement(plot_, shortTitle(title_), font());
  title->setTextColor(theme.text);
  plot_->plotLayout()->addElement(0, 0, title);
  Canvas canvas(*plot_, theme, panels_);
  if (drawing_) drawing_(canvas);
  bool isSame = isZoomed_ && labels.size() == panels_.size();
  for (std::size_t n = 0; isSame && n < panels_.size(); ++n)
    isSame = labels[n] == panels_[n]->xAxis().label() + QLatin1Char('\n') + panels_[n]->yAxis().label();
  for (std::size_t n = 0; isSame && n < panels_.size(); ++n) panels_[n]->setRanges(ranges[n].first, ranges[n].second);
  isZoomed_ = isSame;
  for (const auto& panel : panels_) panel->mark(marked_);
  plot_->replot(QCustomPlot::rpQueuedReplot);
}

void Picture::showAll() {
  for (const auto& panel : panels_) panel->showAll();
  isZoomed_ = false;
  plot_->replot(QCustomPlot::rpQueuedReplot);
}

void Picture::zoom(double factor) {
  for (const auto& panel : panels_)
    for (QCPAxis* axis : {&panel->xAxis(), &panel->yAxis()}) axis->scaleRange(factor);
  isZoomed_ = true;
  plot_->replot(QCustomPlot::rpQueuedReplot);
}

std::unique_ptr<Picture> Picture::onPaper() const {
  auto paper = std::make_unique<Picture>(objectName());
  paper->paper_ = paperTheme();
  paper->setFont(font());
  paper->title_ = title_;
  paper->drawing_ = drawing_;
  paper->redraw();
  for (std::size_t n = 0; n < panels_.size() && n < paper->panels_.size(); ++n)
    paper->panels_[n]->setRanges(panels_[n]->xAxis().range(), panels_[n]->yAxis().range());
  return paper;
}

void Picture::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) redraw();
}

void Picture::keyPressEvent(QKeyEvent* event) {
  constexpr double kStep = 1.25;
  switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down: emit arrowPressed(static_cast<Qt::Key>(event->key())); break;
    case Qt::Key_Plus: zoom(1 / kStep); break;
    case Qt::Key_Minus: zoom(kStep); break;
    case Qt::Key_Home: showAll(); break;
    case Qt::Key_Escape:
      showAll();
      emit escaped();
      break;
    default: QWidget::keyPressEvent(event);
  }
}

}  // namespace tavimor
