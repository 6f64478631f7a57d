#pragma once

#include <QStatusBar>

namespace tavimor {

class ElidedLabel;

/// The line at the foot of a window that says where one stands. Its left holds one text: a result, which stays until
/// the next one, or a hint, which stands in its place until it is cleared. What is added by addPermanentWidget stands
/// on the right. A text that is too long is left out in the middle, and the tool tip shows the whole then: the line
/// never widens its window.
class StatusLine : public QStatusBar {
  Q_OBJECT

 public:
  StatusLine();

  /// In words why something does not go on, or what to know about what was just done.
  void showHint(const QString& hint);
  void clearHint() { showHint({}); }

  /// What the last piece of work came to; an empty text for none.
  void showResult(const QString& result);

  /// The text on the left.
  QString text() const;

 private:
  void showText();

  QString hint_;
  QString result_;
  ElidedLabel* lblMessage_;
};

}  // namespace tavimor
