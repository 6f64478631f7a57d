#include "ui/controls/error_box.h"

#include <QMessageBox>
#include <QPushButton>

#include "runtime/text.h"
#include "ui/controls/common_dialog.h"
#include "ui/controls/message_box.h"

namespace tavimor {

namespace {

using Save = std::function<void(const std::string&)>;

QString failureText(const Failure& failure) {
  const QString text =
      QStringLiteral("%1:\n\n%2").arg(QString::fromStdString(failure.heading()), QString::fromUtf8(failure.what()));
  return failure.path().empty() ? text
                                : text + QStringLiteral("\n") + QString::fromStdString(withEscapes(failure.path()));
}

bool wantsCopy(const Failure& failure, const Save& save) {
  QMessageBox box(QMessageBox::Critical, kTitle, failureText(failure));
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
  } catch (const Failure& failure) {
    showWarning(failureText(failure));
    return false;
  }
}

}  // namespace

void reportFailure(const Failure& failure, const Save& save) {
  while (wantsCopy(failure, save))
    if (hasSavedCopy(save)) return;
}

}  // namespace tavimor
