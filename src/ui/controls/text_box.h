#pragma once

#include <QChar>
#include <QLineEdit>

class QFocusEvent;

namespace tavimor {

/// What Enter does in a text box that has not swallowed it.
enum class EnterKey { Stays, MovesOn };

/// What becomes of text that is pasted or dropped into a text box: it goes in as it is, or each character passes the
/// KeyPress event like a typed one.
enum class Pasting { AsItIs, AsTyped };

/// A text box with the events of the program's fields.
///
/// Focus, in this order: Validate and LostFocus of the box that is left, then GotFocus of the one that is entered.
/// Validate comes before the focus goes to another control of the same window, by Tab, Shift+Tab, mouse or program.
/// Where a handler cancels it, the focus stays, no LostFocus comes, and a click that wanted the focus is swallowed.
/// One box of a window holds the focus: where the window's focus has moved to another box while it was in the
/// background, Validate and LostFocus come when that one is entered, and a box that refuses gets the focus back.
/// What a GotFocus handler selects stays selected, also where a click brought the focus.
/// A box that is hidden or disabled loses the focus without Validate. Menus, dialogs, other windows and other
/// programs take the focus for a while only: neither Validate nor LostFocus comes, nor GotFocus on return.
///
/// Keys, in this order: KeyDown, KeyPress, Change. Change comes for every change of the text, by hand or by program.
class TextBox : public QLineEdit {
  Q_OBJECT

 public:
  explicit TextBox(const QString& name, QWidget* parent = nullptr);

  void setEnterKey(EnterKey enterKey) { enterKey_ = enterKey; }
  void setPasting(Pasting pasting) { pasting_ = pasting; }

  /// Ends the entry in a box that has had GotFocus and no LostFocus: Validate and LostFocus, as if it was left for
  /// another control. False where it refuses; it then keeps the focus.
  bool leave();

 signals:
  void GotFocus();
  void Change();
  /// The key's Qt::Key code; a handler that sets it to 0 swallows the key.
  void KeyDown(int& keyCode);
  /// A typed character, Backspace, Enter and Escape included, shortcuts not, pasted text with Pasting::AsTyped only; a
  /// handler may change it, or discard it by making it null.
  void KeyPress(QChar& character);
  void Validate(bool& cancel);
  void LostFocus();

 protected:
  bool event(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool isLeftFor(const QWidget* next, Qt::FocusReason reason) const;
  bool mayLeave();
  bool letsGo(Qt::FocusReason reason);
  TextBox* otherHolder() const;
  void keepFocus(Qt::FocusReason reason);
  QChar filtered(QChar character);
  QString filtered(const QString& text);
  void press(QKeyEvent* event);
  void release(QMouseEvent* event);
  void pasteAsTyped(const QString& text);

  EnterKey enterKey_ = EnterKey::Stays;
  Pasting pasting_ = Pasting::AsItIs;
  bool holdsFocus_ = false;    // GotFocus has come, and no LostFocus since
  bool isEntryClick_ = false;  // the click that brought the focus is not over
};

}  // namespace tavimor
