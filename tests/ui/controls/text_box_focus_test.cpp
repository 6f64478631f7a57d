#include <gtest/gtest.h>

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

#include "ui/support/dialogs.h"
#include "ui/support/event_log.h"

namespace tavimor {
namespace {

// A window with a menu, two text boxes, a button, a check box, a list and a label.
class TextBoxFocus : public testing::Test {
 protected:
  TextBoxFocus() {
    auto* layout = new QVBoxLayout(&window);
    layout->setMenuBar(&menuBar);
    for (QWidget* widget : std::initializer_list<QWidget*>{&first, &second, &button, &check, &list, &label})
      layout->addWidget(widget);
    list.addItems({QStringLiteral("one"), QStringLiteral("two")});
    button.setFocusPolicy(Qt::StrongFocus);
    check.setFocusPolicy(Qt::StrongFocus);
    QObject::connect(&button, &QPushButton::clicked, [this] { ++clicks; });
    QObject::connect(&first, &TextBox::Validate, [this](bool& cancel) { cancel = refuses; });
    log.watch(first);
    log.watch(second);
    window.show();
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    first.setFocus();
    log.take();
  }

  Dialogs dialogs;
  QWidget window;
  QMenuBar menuBar;
  TextBox first{QStringLiteral("first")}, second{QStringLiteral("second")};
  QPushButton button{QStringLiteral("Press")};
  QCheckBox check{QStringLiteral("Check")};
  QListWidget list;
  QLabel label{QStringLiteral("text")};
  EventLog log;
  bool refuses = false;
  int clicks = 0;
};

TEST_F(TextBoxFocus, TabValidatesLeavesAndEntersInThisOrder) {
  QTest::keyClick(&first, Qt::Key_Tab);
  EXPECT_EQ(log.take(), "first.Validate first.LostFocus second.GotFocus");
  EXPECT_TRUE(second.hasFocus());
}

TEST_F(TextBoxFocus, ShiftTabValidatesToo) {
  second.setFocus();
  log.take();
  QTest::keyClick(&second, Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(log.take(), "second.Validate second.LostFocus first.GotFocus");
}

TEST_F(TextBoxFocus, TheMouseValidatesToo) {
  QTest::mouseClick(&second, Qt::LeftButton);
  EXPECT_EQ(log.take(), "first.Validate first.LostFocus second.GotFocus");
}

TEST_F(TextBoxFocus, TheProgramValidatesToo) {
  second.setFocus();
  EXPECT_EQ(log.take(), "first.Validate first.LostFocus second.GotFocus");
}

TEST_F(TextBoxFocus, AClickOnAButtonLeavesTheBoxAndPresses) {
  QTest::mouseClick(&button, Qt::LeftButton);
  EXPECT_EQ(log.take(), "first.Validate first.LostFocus");
  EXPECT_EQ(clicks, 1);
}

TEST_F(TextBoxFocus, ACancelledTabStays) {
  refuses = true;
  QTest::keyClick(&first, Qt::Key_Tab);
  EXPECT_EQ(log.take(), "first.Validate");
  EXPECT_TRUE(first.hasFocus());
}

TEST_F(TextBoxFocus, ACancelledShiftTabStays) {
  refuses = true;
  QTest::keyClick(&first, Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(log.take(), "first.Validate");
  EXPECT_TRUE(first.hasFocus());
}

TEST_F(TextBoxFocus, ACancelledSetFocusStays) {
  refuses = true;
  second.setFocus();
  EXPECT_EQ(log.take(), "first.Validate");
  EXPECT_TRUE(first.hasFocus());
}

TEST_F(TextBoxFocus, ACancelledClickOnAButtonIsSwallowed) {
  refuses = true;
  QTest::mouseClick(&button, Qt::LeftButton);
  EXPECT_EQ(log.take(), "first.Validate");
  EXPECT_TRUE(first.hasFocus());
  EXPECT_EQ(clicks, 0);
}

TEST_F(TextBoxFocus, ACancelledClickDoesNotTakeTheNextOneAlong) {
  refuses = true;
  QTest::mouseClick(&button, Qt::LeftButton);
  refuses = false;
  QTest::mouseClick(&button, Qt::LeftButton);
  EXPECT_EQ(clicks, 1);
}

TEST_F(TextBoxFocus, ACancelledClickNeitherChecksNorSelects) {
  refuses = true;
  QTest::mouseClick(&check, Qt::LeftButton, {}, {8, check.height() / 2});
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(1)).center());
  EXPECT_FALSE(check.isChecked());
  EXPECT_TRUE(list.selectedItems().isEmpty());
  EXPECT_TRUE(first.hasFocus());
}

TEST_F(TextBoxFocus, ACancelledDoubleClickIsSwallowed) {
  refuses = true;
  QTest::mouseDClick(&button, Qt::LeftButton);
  EXPECT_EQ(clicks, 0);
}

// A window in the background changes its focus without a word to the box that had it.
class TextBoxFocusInTheBackground : public TextBoxFocus {
 protected:
  void moveFocusInTheBackground() {
    QWidget other;
    other.show();
    other.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&other));
    second.setFocus();
    other.hide();
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  }
};

TEST_F(TextBoxFocusInTheBackground, LeavesTheBoxWhenTheOtherOneIsEntered) {
  moveFocusInTheBackground();
  EXPECT_EQ(log.take(), "first.Validate first.LostFocus second.GotFocus");
  EXPECT_TRUE(second.hasFocus());
}

TEST_F(TextBoxFocusInTheBackground, TheBoxThatRefusedFirstKeepsIt) {
  QObject::connect(&second, &TextBox::Validate, [this](bool& cancel) { cancel = refuses; });
  refuses = true;
  moveFocusInTheBackground();
  EXPECT_EQ(log.take(), "first.Validate");
  EXPECT_TRUE(first.hasFocus());
  QTest::mouseClick(&second, Qt::LeftButton);
  QTest::mouseClick(&first, Qt::LeftButton);
  EXPECT_TRUE(first.hasFocus());
  EXPECT_EQ(log.take(), "first.Validate");
}

TEST_F(TextBoxFocus, TypingGoesOnAfterACancelledMove) {
  refuses = true;
  QTest::mouseClick(&second, Qt::LeftButton);
  QTest::keyClicks(window.focusWidget(), QStringLiteral("5"));
  EXPECT_EQ(first.text(), QStringLiteral("5"));
  EXPECT_EQ(second.text(), QString());
}

TEST_F(TextBoxFocus, AClickOnALabelLeavesNothing) {
  QTest::mouseClick(&label, Qt::LeftButton);
  EXPECT_EQ(log.take(), "");
  EXPECT_TRUE(first.hasFocus());
}

TEST_F(TextBoxFocus, AMenuRaisesNoValidate) {
  QMenu* menu = menuBar.addMenu(QStringLiteral("&File"));
  int chosen = 0;
  QObject::connect(menu->addAction(QStringLiteral("&Open")), &QAction::triggered, [&chosen] { ++chosen; });
  refuses = true;
  QTest::keyClick(&first, Qt::Key_F, Qt::AltModifier);
  ASSERT_TRUE(QTest::qWaitFor([menu] { return menu->isVisible(); }));
  QTest::keyClick(menu, Qt::Key_O);
  EXPECT_EQ(chosen, 1);
  EXPECT_TRUE(QTest::qWaitFor([this] { return first.hasFocus(); }));
  EXPECT_EQ(log.take(), "");
}

TEST_F(TextBoxFocus, ADialogRaisesNoValidate) {
  refuses = true;
  dialogs.expectAndCancel();
  QDialog dialog(&window);
  dialog.exec();
  window.activateWindow();
  EXPECT_TRUE(QTest::qWaitFor([this] { return first.hasFocus(); }));
  EXPECT_EQ(log.take(), "");
}

TEST_F(TextBoxFocus, AnotherWindowRaisesNoValidate) {
  QWidget other;
  QLineEdit edit(&other);
  other.show();
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  edit.setFocus();
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  EXPECT_TRUE(first.hasFocus());
  EXPECT_EQ(log.take(), "");
}

TEST_F(TextBoxFocus, ABoxThatIsDisabledLosesTheFocusWithoutValidate) {
  refuses = true;
  first.setEnabled(false);
  EXPECT_EQ(log.take(), "first.LostFocus second.GotFocus");
}

TEST_F(TextBoxFocus, ABoxThatIsHiddenLosesTheFocusWithoutValidate) {
  refuses = true;
  first.hide();
  EXPECT_EQ(log.take(), "first.LostFocus second.GotFocus");
}

TEST_F(TextBoxFocus, TheClickThatEntersLeavesTheSelectionOfTheHandler) {
  QObject::connect(&second, &TextBox::GotFocus, &second, &QLineEdit::selectAll);
  second.setText(QStringLiteral("12345"));
  QTest::mouseClick(&second, Qt::LeftButton);
  EXPECT_EQ(second.selectedText(), QStringLiteral("12345"));
  QTest::mouseClick(&second, Qt::LeftButton);
  EXPECT_EQ(second.selectedText(), QString());
}

TEST_F(TextBoxFocus, ALostFocusHandlerMaySendTheFocusElsewhere) {
  TextBox third(QStringLiteral("third"), &window);
  third.show();
  log.watch(third);
  QObject::connect(&first, &TextBox::LostFocus, [&third] { third.setFocus(); });
  QTest::mouseClick(&second, Qt::LeftButton);
  EXPECT_TRUE(third.hasFocus());
  EXPECT_EQ(log.take(), "first.Validate first.LostFocus third.GotFocus");
}

TEST_F(TextBoxFocus, ALostFocusHandlerMayDisableTheBoxItself) {
  QObject::connect(&first, &TextBox::LostFocus, [this] { first.setEnabled(false); });
  QTest::keyClick(&first, Qt::Key_Tab);
  EXPECT_TRUE(second.hasFocus());
  EXPECT_EQ(log.take(), "first.Validate first.LostFocus second.GotFocus");
}

}  // namespace
}  // namespace tavimor
