#include "ui/controls/message_box.h"

#include <QApplication>
#include <QMessageBox>

namespace tavimor {

namespace {

int show(QMessageBox::Icon icon, const QString& text, QMessageBox::StandardButtons buttons,
         QMessageBox::StandardButton defaultButton, const QString& title = kTitle) {
  QMessageBox box(icon, title, text, buttons, QApplication::activeWindow());
  box.setTextFormat(Qt::PlainText);
  box.setDefaultButton(defaultButton);
  return box.exec();
}

}  // namespace

void showWarning(const QString& text) { show(QMessageBox::Warning, text, QMessageBox::Ok, QMessageBox::Ok); }

Answer ask(const QString& question) {
  const int pressed = show(QMessageBox::Question, question, QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
  return pressed == QMessageBox::Yes ? Answer::Yes : Answer::No;
}

Answer askCritical(const QString& question, const QString& title) {
  const QString text = QString(question).replace(QLatin1Char('\r'), QLatin1Char('\n'));
  switch (show(QMessageBox::Critical, text, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes,
               title)) {
    case QMessageBox::Yes: return Answer::Yes;
    case QMessageBox::No: return Answer::No;
    default: return Answer::Cancel;
  }
}

}  // namespace tavimor
