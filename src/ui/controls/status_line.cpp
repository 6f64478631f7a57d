#include "ui/controls/status_line.h"

#include <QAccessible>

#include "ui/controls/elided_label.h"
#include "ui/controls/fonts.h"

namespace tavimor {

StatusLine::StatusLine() : lblMessage_(new ElidedLabel) {
  setObjectName(QStringLiteral("stbStatus"));
  setSizeGripEnabled(false);
  lblMessage_->setObjectName(QStringLiteral("lblMessage"));
  lblMessage_->setFont(sansSerifFont());
  addWidget(lblMessage_, 1);
}

void StatusLine::showHint(const QString& hint) {
  hint_ = hint;
  showText();
}

void StatusLine::showResult(const QString& result) {
  result_ = result;
  showText();
}

QString StatusLine::text() const { return lblMessage_->text(); }

// A screen reader speaks a text when it comes, not when it goes.
void StatusLine::showText() {
  const QString& shown = hint_.isEmpty() ? result_ : hint_;
  if (shown == text()) return;
  lblMessage_->setText(shown);
  if (shown.isEmpty()) return;
  QAccessibleEvent spoken(lblMessage_, QAccessible::Alert);
  QAccessible::updateAccessibility(&spoken);
}

}  // namespace tavimor
