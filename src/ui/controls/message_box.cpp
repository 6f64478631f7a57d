#include "ui/controls/message_box.h"

#include <QApplication>
#include <QMessageBox>

namespace tavimor {

namespace {

int show(QMessageBox::Icon icon, const QString& text, QMessageBox::StandardButtons buttons,
         QMessageBox::StandardButton defaultButton) {
  QMessageBox box(icon, kTitle, text, buttons, QApplication::activeWindow());
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

}  // namespace tavimor
