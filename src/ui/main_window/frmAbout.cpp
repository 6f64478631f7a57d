#include "ui/main_window/frmAbout.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScreen>

#include "ui/controls/fonts.h"
#include "ui/controls/message_box.h"

namespace tavimor {

namespace {

constexpr char kNotice1[] = "Copyright 2026 the Tavimor developers";
constexpr char kNotice2[] = "Free software under the MIT License";

constexpr int kColumns = 48;  // characters
constexpr int kRows = 12;
constexpr int kIconRows = 4;  // in the lines that the text leaves empty above itself, and the margin
constexpr int kMargin = 8;    // pixels

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
  const QRect empty(place.topLeft(), QSize(width(), kIconRows * place.height()));
  windowIcon().paint(&painter, empty.marginsRemoved({0, kMargin, 0, kMargin}));
  place.translate(0, place.height());
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

frmAbout& ShowAbout() {
  if (auto* shown = Form::openForm<frmAbout>()) {
    shown->raise();
    shown->activateWindow();
    return *shown;
  }
  auto* about = new frmAbout;
  about->show();
  for (const char* line : {"", "", "", kTitle, "", kNotice1, "", kNotice2, "", kWebAddress})
    about->Print(QLatin1String(line));
  return *about;
}

}  // namespace tavimor
