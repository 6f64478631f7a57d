#include "ui/controls/list_box.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QElapsedTimer>
#include <QFontInfo>
#include <QGuiApplication>
#include <QScrollBar>
#include <QTest>

namespace tavimor {
namespace {

class ListBoxes : public testing::Test {
 protected:
  void show() {
    list.resize(400, 300);
    list.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&list));
    list.setFocus();
  }

  static QString clipboard() { return QGuiApplication::clipboard()->text(); }

  ListBox list{QStringLiteral("lstTest")};
};

TEST_F(ListBoxes, CtrlACtrlCCopyAllLinesWithoutBlanksAtTheirEnds) {
  list.addItems({QStringLiteral("1   *x  "), QString(), QStringLiteral("  2")});
  show();
  QTest::keyClick(&list, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(&list, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(clipboard(), QStringLiteral("1   *x\n\n  2"));
}

TEST_F(ListBoxes, CtrlCCopiesTheSelectedLinesFromTopToBottom) {
  list.addItems({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
  show();
  const auto click = [this](int row, Qt::KeyboardModifiers modifiers) {
    QTest::mouseClick(list.viewport(), Qt::LeftButton, modifiers, list.visualItemRect(list.item(row)).center());
  };
  click(2, Qt::NoModifier);
  click(0, Qt::ControlModifier);
  QTest::keyClick(&list, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(clipboard(), QStringLiteral("a\nc"));
}

TEST_F(ListBoxes, BlanksAtALinesEndDoNotMakeItScroll) {
  list.addItem(QStringLiteral("1.5") + QString(255, QLatin1Char(' ')));
  show();
  EXPECT_EQ(list.horizontalScrollBar()->maximum(), 0);
}

TEST_F(ListBoxes, ALongLineScrolls) {
  list.addItem(QString(255, QLatin1Char('x')));
  show();
  EXPECT_GT(list.horizontalScrollBar()->maximum(), 0);
}

TEST_F(ListBoxes, TheFontIsOfFixedPitch) {
  EXPECT_EQ(list.font().family(), QStringLiteral("Courier New"));
  EXPECT_TRUE(QFontInfo(list.font()).fixedPitch());
}

TEST_F(ListBoxes, TenThousandLinesAppearAtOnce) {
  show();
  QStringList lines;
  for (int n = 0; n < 10000; ++n) lines << QString::number(n) + QString(255, QLatin1Char(' '));
  QElapsedTimer timer;
  timer.start();
  list.addItems(lines);
  list.grab();
  EXPECT_LT(timer.elapsed(), 1000);
  EXPECT_EQ(list.count(), 10000);
}

}  // namespace
}  // namespace tavimor
