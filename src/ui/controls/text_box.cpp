#include "ui/controls/text_box.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>

#include "ui/controls/typed_character.h"

namespace tavimor {

namespace {

bool isEnter(int keyCode) { return keyCode == Qt::Key_Return || keyCode == Qt::Key_Enter; }

}  // namespace

TextBox::TextBox(const QString& name, QWidget* parent) : QLineEdit(parent) {
  setObjectName(name);
  connect(this, &QLineEdit::textChanged, this, &TextBox::Change);
}

void TextBox::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  if (holdsFocus_) return;
  holdsFocus_ = true;
  emit GotFocus();
  isEntryClick_ = event->reason() == Qt::MouseFocusReason && hasSelectedText();
}

void TextBox::focusOutEvent(QFocusEvent* event) {
  if (!isLeftFor(QApplication::focusWidget(), event->reason())) {
    QLineEdit::focusOutEvent(event);
    return;
  }
  if (!mayLeave()) {
    keepFocus(event->reason());
    return;
  }
  holdsFocus_ = false;
  QLineEdit::focusOutEvent(event);
  emit LostFocus();
}

// A control that was passed over on the way to another one has had no GotFocus: nothing is left there.
bool TextBox::isLeftFor(const QWidget* next, Qt::FocusReason reason) const {
  const bool onlyForAWhile = reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason;
  return holdsFocus_ && !onlyForAWhile && next != nullptr && next != this && next->window() == window();
}

bool TextBox::mayLeave() {
  bool cancel = false;
  if (isEnabled() && isVisible()) emit Validate(cancel);
  return !cancel;
}

void TextBox::keepFocus(Qt::FocusReason reason) {
  setFocus(Qt::OtherFocusReason);
  // The press that asked for the focus is about to be delivered.
  if (reason == Qt::MouseFocusReason) qApp->installEventFilter(this);
}

bool TextBox::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::MouseButtonPress && event->type() != QEvent::MouseButtonDblClick)
    return QLineEdit::eventFilter(watched, event);
  qApp->removeEventFilter(this);
  event->accept();
  return true;
}

void TextBox::mousePressEvent(QMouseEvent* event) {
  if (!isEntryClick_) QLineEdit::mousePressEvent(event);
}

void TextBox::mouseMoveEvent(QMouseEvent* event) {
  if (!isEntryClick_) QLineEdit::mouseMoveEvent(event);
}

void TextBox::mouseReleaseEvent(QMouseEvent* event) {
  if (!isEntryClick_) QLineEdit::mouseReleaseEvent(event);
  isEntryClick_ = false;
}

void TextBox::keyPressEvent(QKeyEvent* event) {
  int keyCode = event->key();
  emit KeyDown(keyCode);
  if (keyCode == 0) {
    event->accept();
    return;
  }
  if (!isTypedCharacter(*event)) {
    press(event);
    return;
  }
  const QChar character = filtered(event->text()[0]);
  event->accept();
  if (character.isNull()) return;
  if (character == event->text()[0]) {
    press(event);
    return;
  }
  insert(character);
}

void TextBox::press(QKeyEvent* event) {
  if (enterKey_ == EnterKey::MovesOn && isEnter(event->key())) {
    event->accept();
    focusNextPrevChild(true);
    return;
  }
  QLineEdit::keyPressEvent(event);
}

QChar TextBox::filtered(QChar character) {
  emit KeyPress(character);
  return character;
}

void TextBox::inputMethodEvent(QInputMethodEvent* event) {
  QString accepted;
  for (const QChar character : event->commitString())
    if (const QChar kept = filtered(character); !kept.isNull()) accepted += kept;
  event->setCommitString(accepted, event->replacementStart(), event->replacementLength());
  QLineEdit::inputMethodEvent(event);
}

}  // namespace tavimor
