#include "ui/controls/elided_label.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>
#include <algorithm>

namespace tavimor {

namespace {

constexpr int kUsualCharacters = 30;
constexpr int kFewestCharacters = 4;

}  // namespace

ElidedLabel::ElidedLabel(const QString& text, QWidget* parent) : QLabel(text, parent) {
  setTextFormat(Qt::PlainText);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
}

QSize ElidedLabel::sizeHint() const {
  QSize size = QLabel::sizeHint();
  size.setWidth(std::min(size.width(), kUsualCharacters * fontMetrics().averageCharWidth()));
  return size;
}

QSize ElidedLabel::minimumSizeHint() const {
  QSize size = QLabel::minimumSizeHint();
  size.setWidth(std::min(size.width(), kFewestCharacters * fontMetrics().averageCharWidth()));
  return size;
}

QString ElidedLabel::shownText() const {
  return fontMetrics().elidedText(text(), Qt::ElideMiddle, contentsRect().width());
}

bool ElidedLabel::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip && shownText() != text()) {
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text().toHtmlEscaped(), this);
    return true;
  }
  return QLabel::event(event);
}

void ElidedLabel::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()), palette(), isEnabled(), shownText(),
                        foregroundRole());
}

}  // namespace tavimor
