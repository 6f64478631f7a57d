#pragma once

#include <QPlainTextEdit>
#include <QPushButton>

#include "ui/controls/fonts.h"

namespace tavimor {

/// A control under its name, with its caption, in the font of labels, buttons and frames.
template <class Control>
Control* makeControl(const QString& name, const char* caption) {
  auto* control = new Control(QLatin1String(caption));
  control->setObjectName(name);
  control->setFont(sansSerifFont());
  return control;
}

/// A button that the Tab key and the mouse give the focus to on every system, and that Enter presses too.
QPushButton* makeButton(const QString& name, const char* caption);

/// The text "txtPreview" of a dialog, of fixed pitch, to be looked at and copied from; the Tab key leaves it.
QPlainTextEdit* makePreview();

/// The width that a text box or a label needs for that many digits.
int widthOf(const QWidget& control, int digits);

}  // namespace tavimor
