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

  void add(const std::vector<std::string>& lines) {
    TextLines added;
    for (const std::string& line : lines) added.add(line);
    list.addItems(added);
  }

  ListBox list{QStringLiteral("lstTest")};
};

TEST_F(ListBoxes, CtrlACtrlCCopyAllLinesWithoutBlanksAtTheirEnds) {
  add({"1   *x  ", "", "  2"});
  show();
  QTest::keyClick(&list, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(&list, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(clipboard(), QStringLiteral("1   *x\n\n  2"));
}

TEST_F(ListBoxes, CtrlCCopiesTheSelectedLinesFromTopToBottom) {
  add({"a", "b", "c"});
  show();
  const auto click = [this](int row, Qt::KeyboardModifiers modifiers) {
    QTest::mouseClick(list.viewport(), Qt::LeftButton, modifiers,
                      list.visualRect(list.model()->index(row, 0)).center());
  };
  click(2, Qt::NoModifier);
  click(0, Qt::ControlModifier);
  QTest::keyClick(&list, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(clipboard(), QStringLiteral("a\nc"));
}

TEST_F(ListBoxes, BlanksAtALinesEndDoNotMakeItScroll) {
  list.addItem("1.5" + std::string(255, ' '));
  show();
  EXPECT_EQ(list.horizontalScrollBar()->maximum(), 0);
}

TEST_F(ListBoxes, ALongLineScrolls) {
  list.addItem(std::string(255, 'x'));
  show();
  EXPECT_GT(list.horizontalScrollBar()->maximum(), 0);
}

TEST_F(ListBoxes, ALineKeepsItsBlanks) {
  add({"größe  ", "   ", ""});
  list.addItem("x ");
  EXPECT_EQ(list.text(0), QStringLiteral("größe  "));
  EXPECT_EQ(list.text(1), QStringLiteral("   "));
  EXPECT_EQ(list.text(2), QString());
  EXPECT_EQ(list.text(3), QStringLiteral("x "));
  list.clear();
  EXPECT_EQ(list.count(), 0);
}

TEST_F(ListBoxes, TheFontIsOfFixedPitch) {
  EXPECT_EQ(list.font().family(), QStringLiteral("Courier New"));
  EXPECT_TRUE(QFontInfo(list.font()).fixedPitch());
}

TEST_F(ListBoxes, TenThousandLinesAppearAtOnce) {
  show();
  std::vector<std::string> lines;
  for (int n = 0; n < 10000; ++n) lines.push_back(std::to_string(n) + std::string(255, ' '));
  QElapsedTimer timer;
  timer.start();
  add(lines);
  list.grab();
  EXPECT_LT(timer.elapsed(), 1000);
  EXPECT_EQ(list.count(), 10000);
}

}  // namespace
}  // namespace tavimor
