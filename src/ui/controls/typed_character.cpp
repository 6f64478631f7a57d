#include "ui/controls/typed_character.h"

namespace tavimor {

bool isTypedCharacter(const QKeyEvent& event) {
  constexpr QChar kDelete(0x7F);
  constexpr Qt::KeyboardModifiers kCommand = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
  const Qt::KeyboardModifiers command = event.modifiers() & kCommand;
  // AltGr arrives as Ctrl+Alt on some systems, and the character with it.
  const bool isCommand = command != Qt::NoModifier && command != (Qt::ControlModifier | Qt::AltModifier);
  return event.text().size() == 1 && !isCommand && event.text()[0] != kDelete;
}

}  // namespace tavimor
