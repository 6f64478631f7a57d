#include <gtest/gtest.h>

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QTest>
#include <QVBoxLayout>

#include "ui/support/event_log.h"

namespace tavimor {
namespace {

class TextBoxKeys : public testing::Test {
 protected:
  TextBoxKeys() {
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(&box);
    layout->addWidget(&next);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    box.setFocus();
  }

  void discardEverythingBut(const QString& allowed) {
    QObject::connect(&box, &TextBox::KeyPress, [allowed](QChar& character) {
      if (!allowed.contains(character)) character = QChar();
    });
  }

  QWidget window;
  TextBox box{QStringLiteral("box")}, next{QStringLiteral("next")};
};

TEST_F(TextBoxKeys, KeyDownComesBeforeKeyPressAndChangeLast) {
  QStringList events;
  QObject::connect(&box, &TextBox::KeyDown, [&](int& key) { events << QStringLiteral("down %1").arg(key); });
  QObject::connect(&box, &TextBox::KeyPress, [&](QChar& character) { events << QStringLiteral("press ") + character; });
  QObject::connect(&box, &TextBox::Change, [&] { events << QStringLiteral("change ") + box.text(); });
  QTest::keyClick(&box, '7');
  EXPECT_EQ(events.join(QLatin1Char(',')), QStringLiteral("down 55,press 7,change 7"));
}

TEST_F(TextBoxKeys, ADiscardedCharacterLeavesTheText) {
  discardEverythingBut(QStringLiteral("12"));
  QTest::keyClicks(&box, QStringLiteral("1a2"));
  EXPECT_EQ(box.text(), QStringLiteral("12"));
}

TEST_F(TextBoxKeys, BackspaceCanBeDiscardedAndDeleteCannot) {
  discardEverythingBut(QStringLiteral("12"));
  QTest::keyClicks(&box, QStringLiteral("12"));
  QTest::keyClick(&box, Qt::Key_Backspace);
  EXPECT_EQ(box.text(), QStringLiteral("12"));
  QTest::keyClick(&box, Qt::Key_Home);
  QTest::keyClick(&box, Qt::Key_Delete);
  EXPECT_EQ(box.text(), QStringLiteral("2"));
}

TEST_F(TextBoxKeys, ACharacterCanBeReplaced) {
  QObject::connect(&box, &TextBox::KeyPress, [](QChar& character) { character = character.toUpper(); });
  QTest::keyClicks(&box, QStringLiteral("e5"));
  EXPECT_EQ(box.text(), QStringLiteral("E5"));
}

TEST_F(TextBoxKeys, ASwallowedKeyDoesNothing) {
  int pressed = 0;
  QObject::connect(&box, &TextBox::KeyDown, [](int& key) { key = 0; });
  QObject::connect(&box, &TextBox::KeyPress, [&pressed](QChar&) { ++pressed; });
  QTest::keyClicks(&box, QStringLiteral("5"));
  EXPECT_EQ(box.text(), QString());
  EXPECT_EQ(pressed, 0);
}

TEST_F(TextBoxKeys, KeyDownToldOfTheArrowsAndOfEnter) {
  QList<int> keys;
  QObject::connect(&box, &TextBox::KeyDown, [&keys](int& key) { keys << key; });
  QTest::keyClick(&box, Qt::Key_Up);
  QTest::keyClick(&box, Qt::Key_Return);
  EXPECT_EQ(keys, (QList<int>{Qt::Key_Up, Qt::Key_Return}));
}

TEST_F(TextBoxKeys, ShortcutsAreNoCharacters) {
  discardEverythingBut({});
  QGuiApplication::clipboard()->setText(QStringLiteral("12"));
  QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(box.text(), QStringLiteral("12"));
}

TEST_F(TextBoxKeys, WhatAnInputMethodTypesIsFilteredToo) {
  discardEverythingBut(QStringLiteral("12"));
  QInputMethodEvent event;
  event.setCommitString(QStringLiteral("1é2"));
  QCoreApplication::sendEvent(&box, &event);
  EXPECT_EQ(box.text(), QStringLiteral("12"));
}

TEST_F(TextBoxKeys, AProgramsChangeIsAChangeToo) {
  int changes = 0;
  QObject::connect(&box, &TextBox::Change, [&changes] { ++changes; });
  box.setText(QStringLiteral("1"));
  box.setText(QStringLiteral("1"));
  EXPECT_EQ(changes, 1);
}

TEST_F(TextBoxKeys, EnterStaysUnlessTheWindowWantsItToMoveOn) {
  QTest::keyClick(&box, Qt::Key_Return);
  EXPECT_TRUE(box.hasFocus());
  box.setEnterKey(EnterKey::MovesOn);
  QTest::keyClick(&box, Qt::Key_Return);
  EXPECT_TRUE(next.hasFocus());
}

TEST_F(TextBoxKeys, EnterThatMovesOnValidates) {
  box.setEnterKey(EnterKey::MovesOn);
  QObject::connect(&box, &TextBox::Validate, [](bool& cancel) { cancel = true; });
  QTest::keyClick(&box, Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_TRUE(box.hasFocus());
}

class TextBoxUndo : public TextBoxKeys {
 protected:
  TextBoxUndo() {
    auto* undo = new QAction(&window);
    undo->setShortcut(QKeySequence::Undo);
    QObject::connect(undo, &QAction::triggered, [this] { ++undone; });
    window.addAction(undo);
  }

  int undone = 0;
};

TEST_F(TextBoxUndo, IsTheBoxsOwnWhileItHasSomethingToUndo) {
  QTest::keyClicks(&box, QStringLiteral("12"));
  QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(box.text(), QString());
  EXPECT_EQ(undone, 0);
  QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(undone, 1);
}

TEST_F(TextBoxUndo, IsTheWindowsOnceTheBoxWasLeft) {
  QTest::keyClicks(&box, QStringLiteral("12"));
  next.setFocus();
  box.setFocus();
  QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(box.text(), QStringLiteral("12"));
  EXPECT_EQ(undone, 1);
}

TEST_F(TextBoxUndo, LeavingTheBoxChangesNoText) {
  EventLog log;
  QTest::keyClicks(&box, QStringLiteral("12"));
  log.watch(box);
  next.setFocus();
  EXPECT_EQ(log.take(), "box.Validate box.LostFocus");
}

}  // namespace
}  // namespace tavimor
