#include "ui/controls/error_box.h"

#include <QMessageBox>
#include <QPushButton>

#include "ui/controls/common_dialog.h"
#include "ui/controls/message_box.h"

namespace tavimor {

namespace {

using Save = std::function<void(const std::string&)>;

QString errorText(const RunTimeError& error) {
  const QString text = QStringLiteral("Run-time error '%1':\n\n%2")
                           .arg(static_cast<int>(error.number()))
                           .arg(QString::fromUtf8(error.what()));
  return error.path().empty() ? text : text + QStringLiteral("\n") + QString::fromStdString(error.path());
}

bool wantsCopy(const RunTimeError& error, const Save& save) {
  QMessageBox box(QMessageBox::Critical, kTitle, errorText(error));
  box.setTextFormat(Qt::PlainText);
  const QPushButton* copy = save ? box.addButton(QStringLiteral("Save a copy..."), QMessageBox::ActionRole) : nullptr;
  QPushButton* end = box.addButton(QStringLiteral("End"), QMessageBox::RejectRole);
  box.setDefaultButton(end);
  box.setEscapeButton(end);
  box.exec();
  return copy != nullptr && box.clickedButton() == copy;
}

bool hasSavedCopy(const Save& save) {
  CommonDialog dialog;
  if (dialog.ShowSave() == DialogEnd::Cancelled) return false;
  try {
    save(dialog.FileName);
    return true;
  } catch (const RunTimeError& error) {
    showWarning(errorText(error));
    return false;
  }
}

}  // namespace

void reportRunTimeError(const RunTimeError& error, const Save& save) {
  while (wantsCopy(error, save))
    if (hasSavedCopy(save)) return;
}

}  // namespace tavimor
