#pragma once

#include <QKeyEvent>

namespace tavimor {

/// Whether a key event types a character, Backspace, Enter and Escape included; Delete and shortcuts do not.
bool isTypedCharacter(const QKeyEvent& event);

}  // namespace tavimor
