#include "ui/frmAbout.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScreen>

#include "ui/controls/fonts.h"

namespace tavimor {

namespace {

constexpr int kColumns = 48;  // characters
constexpr int kRows = 13;

}  // namespace

frmAbout::frmAbout() : Form(QStringLiteral("frmAbout")) {
  setWindowTitle(QStringLiteral("About Tavimor"));
  setFont(sansSerifFont());
  setFixedSize(kColumns * fontMetrics().averageCharWidth(), kRows * fontMetrics().lineSpacing());
  move(screen()->availableGeometry().center() - rect().center());
}

void frmAbout::Print(const QString& line) {
  lines_ << line;
  setAccessibleDescription(lines_.join(QLatin1Char('\n')));
  update();
}

void frmAbout::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  QRect place(0, 0, width(), fontMetrics().lineSpacing());
  for (const QString& line : lines_) {
    painter.drawText(place, Qt::AlignCenter, line);
    place.translate(0, place.height());
  }
}

void frmAbout::mousePressEvent(QMouseEvent* /*event*/) { Form_Click(); }

void frmAbout::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Escape:
    case Qt::Key_Return:
    case Qt::Key_Enter: Form_Click(); break;
    default: event->ignore();
  }
}

void frmAbout::Form_Click() { unload(); }

}  // namespace tavimor
