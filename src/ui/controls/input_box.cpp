#include "ui/controls/input_box.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace tavimor {

std::string InputBox(const QString& prompt, const QString& title) {
  QDialog dialog(QApplication::activeWindow());
  dialog.setWindowTitle(title);
  auto* label = new QLabel(prompt);
  label->setTextFormat(Qt::PlainText);
  auto* answer = new QLineEdit;
  answer->setAccessibleName(prompt);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  auto* layout = new QVBoxLayout(&dialog);
  layout->addWidget(label);
  layout->addWidget(answer);
  layout->addWidget(buttons);
  return dialog.exec() == QDialog::Accepted ? answer->text().toStdString() : std::string();
}

}  // namespace tavimor
