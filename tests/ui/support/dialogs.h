#pragma once

#include <QDialog>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QObject>
#include <QPointer>
#include <deque>
#include <functional>

namespace tavimor {

/// Answers the dialogs that a test expects, each by real key or mouse events, in the order in which they are expected.
/// A dialog that nobody expected, or that stays open, fails the test and is called off; an expected one that does not
/// come fails the test too.
class Dialogs : public QObject {
 public:
  using Reply = std::function<void(QDialog&)>;

  Dialogs();
  ~Dialogs() override;

  void expect(Reply reply) { replies_.push_back(std::move(reply)); }

  /// Types a text into the dialog's line and presses Enter; an input box or a file dialog.
  void expectAndType(const QString& text, const std::function<void()>& beforeEnter = {});

  /// Chooses a PDF file in the print dialog, types its path and presses Enter.
  void expectAndPrintTo(const QString& path, const std::function<void()>& beforeEnter = {});

  /// Presses Escape.
  void expectAndCancel();

  /// Presses the button with this caption, and leaves the message's text behind.
  void expectAndPress(const QString& button, QString* text = nullptr);

 private:
  void lookAgain();
  void look();
  static void refuse(QDialog& dialog, const char* reason);

  std::deque<Reply> replies_;
  QPointer<QDialog> answered_;
  QElapsedTimer sinceReply_;
};

}  // namespace tavimor
