#include "ui/controls/make_control.h"

#include <QFontMetrics>

namespace tavimor {

QPushButton* makeButton(const QString& name, const char* caption) {
  auto* button = makeControl<QPushButton>(name, caption);
  button->setFocusPolicy(Qt::StrongFocus);
  button->setAutoDefault(true);
  return button;
}

QPlainTextEdit* makePreview() {
  auto* preview = new QPlainTextEdit;
  preview->setObjectName(QStringLiteral("txtPreview"));
  preview->setAccessibleName(QStringLiteral("Preview"));
  preview->setReadOnly(true);
  preview->setLineWrapMode(QPlainTextEdit::NoWrap);
  preview->setFont(fixedPitchFont());
  preview->setTabChangesFocus(true);
  return preview;
}

int widthOf(const QWidget& control, int digits) {
  constexpr int kMargins = 2;  // digits' worth of frame and cursor
  return (digits + kMargins) * control.fontMetrics().horizontalAdvance(QLatin1Char('0'));
}

}  // namespace tavimor
