#include "ui/controls/text_box.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <utility>

#include "ui/controls/typed_character.h"

namespace tavimor {

namespace {

// The focus is on its way back to a box that has refused to lose it: who loses it now is not asked.
bool isGivenBack = false;

// The keys of Undo and Redo are the box's own only while it has something to undo or redo that was typed since it got
// the focus; otherwise they are the window's. Some desktops know Ctrl+E as a way to the end of a field, as the key End
// is: a menu that has that shortcut comes first.
bool isLeftToWindow(const QLineEdit& box, const QKeyEvent& key) {
  return (key.matches(QKeySequence::Undo) && !box.isUndoAvailable()) ||
         (key.matches(QKeySequence::Redo) && !box.isRedoAvailable()) || key.keyCombination() == (Qt::CTRL | Qt::Key_E);
}

// The same text set anew, which is no change: what was typed is over, and no longer the box's to undo.
void endTyping(QLineEdit& box) {
  const int cursor = box.cursorPosition();
  box.setText(box.text());
  box.setCursorPosition(cursor);
}

bool isEnter(int keyCode) { return keyCode == Qt::Key_Return || keyCode == Qt::Key_Enter; }

}  // namespace

TextBox::TextBox(const QString& name, QWidget* parent) : QLineEdit(parent) {
  setObjectName(name);
  connect(this, &QLineEdit::textChanged, this, &TextBox::Change);
}

bool TextBox::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride && isLeftToWindow(*this, static_cast<const QKeyEvent&>(*event))) {
    event->ignore();
    return true;
  }
  return QLineEdit::event(event);
}

void TextBox::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  if (holdsFocus_) return;
  // A window in the background changes its focus without a word to the box that had it: that one is left only now.
  if (TextBox* holder = otherHolder(); holder != nullptr && !holder->letsGo(event->reason())) return;
  holdsFocus_ = true;
  emit GotFocus();
  isEntryClick_ = event->reason() == Qt::MouseFocusReason && hasSelectedText();
}

void TextBox::focusOutEvent(QFocusEvent* event) {
  if (isGivenBack || !isLeftFor(QApplication::focusWidget(), event->reason())) {
    QLineEdit::focusOutEvent(event);
    return;
  }
  if (!mayLeave()) {
    keepFocus(event->reason());
    return;
  }
  holdsFocus_ = false;
  QLineEdit::focusOutEvent(event);
  endTyping(*this);
  emit LostFocus();
}

bool TextBox::leave() { return !holdsFocus_ || letsGo(Qt::OtherFocusReason); }

TextBox* TextBox::otherHolder() const {
  for (TextBox* box : window()->findChildren<TextBox*>())
    if (box != this && box->holdsFocus_) return box;
  return nullptr;
}

// Where it does not, it has taken the focus back.
bool TextBox::letsGo(Qt::FocusReason reason) {
  if (!mayLeave()) {
    keepFocus(reason);
    return false;
  }
  holdsFocus_ = false;
  endTyping(*this);
  emit LostFocus();
  return true;
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
  const bool wasGivenBack = std::exchange(isGivenBack, true);
  setFocus(Qt::OtherFocusReason);
  isGivenBack = wasGivenBack;
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
  if (!isEntryClick_) release(event);
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
  if (pasting_ == Pasting::AsTyped && event->matches(QKeySequence::Paste)) {
    event->accept();
    pasteAsTyped(QApplication::clipboard()->text());
    return;
  }
  QLineEdit::keyPressEvent(event);
}

QChar TextBox::filtered(QChar character) {
  emit KeyPress(character);
  return character;
}

QString TextBox::filtered(const QString& text) {
  QString kept;
  for (const QChar character : text)
    if (const QChar passed = filtered(character); !passed.isNull()) kept += passed;
  return kept;
}

void TextBox::inputMethodEvent(QInputMethodEvent* event) {
  event->setCommitString(filtered(event->commitString()), event->replacementStart(), event->replacementLength());
  QLineEdit::inputMethodEvent(event);
}

void TextBox::release(QMouseEvent* event) {
  const bool pastes = event->button() == Qt::MiddleButton && QApplication::clipboard()->supportsSelection();
  if (pasting_ == Pasting::AsItIs || !pastes) {
    QLineEdit::mouseReleaseEvent(event);
    return;
  }
  deselect();
  pasteAsTyped(QApplication::clipboard()->text(QClipboard::Selection));
}

void TextBox::contextMenuEvent(QContextMenuEvent* event) {
  QMenu* menu = createStandardContextMenu();
  menu->setAttribute(Qt::WA_DeleteOnClose);
  for (QAction* action : menu->actions()) {
    if (pasting_ == Pasting::AsItIs || !action->text().startsWith(QLineEdit::tr("&Paste"))) continue;
    disconnect(action, nullptr, this, nullptr);
    connect(action, &QAction::triggered, this, [this] { pasteAsTyped(QApplication::clipboard()->text()); });
  }
  menu->popup(event->globalPos());
}

void TextBox::dropEvent(QDropEvent* event) {
  if (pasting_ == Pasting::AsItIs) {
    QLineEdit::dropEvent(event);
    return;
  }
  event->acceptProposedAction();
  setCursorPosition(cursorPositionAt(event->position().toPoint()));
  pasteAsTyped(event->mimeData()->text());
}

// A text of which nothing is kept leaves the selection, as a discarded key does.
void TextBox::pasteAsTyped(const QString& text) {
  if (const QString kept = filtered(text); !kept.isEmpty()) insert(kept);
}

}  // namespace tavimor
