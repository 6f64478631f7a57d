#include "ui/support/dialogs.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

namespace tavimor {

namespace {

constexpr int kPatience = 5000;  // milliseconds

QLineEdit* lineOf(QDialog& dialog) {
  if (qobject_cast<QFileDialog*>(&dialog) != nullptr)
    return dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
  return dialog.findChild<QLineEdit*>();
}

void typeAndEnter(QLineEdit* line, const QString& text, const std::function<void()>& beforeEnter) {
  ASSERT_NE(line, nullptr);
  line->setCompleter(nullptr);  // its list takes the activation where there is no window manager
  line->selectAll();
  QTest::keyClicks(line, text);
  if (beforeEnter) beforeEnter();
  QTest::keyClick(line, Qt::Key_Return);
}

QString textOf(const QDialog& dialog) {
  const auto* box = qobject_cast<const QMessageBox*>(&dialog);
  return box == nullptr ? QString() : box->text();
}

QAbstractButton* buttonOf(QDialog& dialog, const QString& caption) {
  for (QAbstractButton* button : dialog.findChildren<QAbstractButton*>())
    if (button->text().remove(QLatin1Char('&')) == caption) return button;
  return nullptr;
}

}  // namespace

Dialogs::Dialogs() { lookAgain(); }

Dialogs::~Dialogs() { EXPECT_TRUE(replies_.empty()) << replies_.size() << " expected dialog(s) did not come"; }

void Dialogs::expectAndType(const QString& text, const std::function<void()>& beforeEnter) {
  expect([text, beforeEnter](QDialog& dialog) { typeAndEnter(lineOf(dialog), text, beforeEnter); });
}

// The file is the last entry of the list of printers.
void Dialogs::expectAndPrintTo(const QString& path, const std::function<void()>& beforeEnter) {
  expect([path, beforeEnter](QDialog& dialog) {
    auto* printers = dialog.findChild<QComboBox*>(QStringLiteral("printers"));
    ASSERT_NE(printers, nullptr) << dialog.windowTitle().toStdString();
    QTest::keyClick(printers, Qt::Key_End);
    typeAndEnter(dialog.findChild<QLineEdit*>(QStringLiteral("filename")), path, beforeEnter);
  });
}

void Dialogs::expectAndCancel() {
  expect([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
}

void Dialogs::expectAndPress(const QString& button, QString* text) {
  expect([button, text](QDialog& dialog) {
    if (text != nullptr) *text = textOf(dialog);
    QAbstractButton* wanted = buttonOf(dialog, button);
    ASSERT_NE(wanted, nullptr) << button.toStdString();
    QTest::mouseClick(wanted, Qt::LeftButton);
  });
}

void Dialogs::lookAgain() {
  constexpr int kMilliseconds = 5;
  QTimer::singleShot(kMilliseconds, this, [this] { look(); });
}

// The next look is arranged first: a reply may open a dialog of its own and wait for it.
void Dialogs::look() {
  lookAgain();
  auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
  if (dialog == nullptr || !dialog->isVisible()) return;
  if (dialog == answered_) {
    if (sinceReply_.hasExpired(kPatience)) refuse(*dialog, "a dialog that its reply did not close");
    return;
  }
  answered_ = dialog;
  sinceReply_.start();
  if (replies_.empty()) {
    refuse(*dialog, "a dialog that nobody expected");
    return;
  }
  dialog->activateWindow();  // the offscreen platform leaves it to the parent
  EXPECT_TRUE(QTest::qWaitFor([dialog] { return QApplication::activeWindow() == dialog; }));
  const Reply reply = std::move(replies_.front());
  replies_.pop_front();
  reply(*dialog);
}

void Dialogs::refuse(QDialog& dialog, const char* reason) {
  ADD_FAILURE() << reason << ": " << dialog.windowTitle().toStdString() << ": " << textOf(dialog).toStdString();
  dialog.reject();
}

}  // namespace tavimor
