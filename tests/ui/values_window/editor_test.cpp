#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QMimeData>
#include <QScrollBar>

#include "ui/support/values_window_test.h"

namespace tavimor {
namespace {

using testing::ElementsAre;
using Values = std::vector<double>;

class EditingValues : public ValuesWindowTest {
 protected:
  void SetUp() override { edit(0); }
};

TEST_F(EditingValues, AClickOpensTheEditorOverTheCellWithItsTextSelected) {
  clickCell(1);
  expectEditing(1);
  EXPECT_EQ(entry().selectedText(), QStringLiteral("0.5"));
  EXPECT_EQ(model.X0, (Values{0, 0.5, 1}));
}

TEST_F(EditingValues, AClickOnTheLabelOpensTheEditorOverTheValue) {
  clickCell(2, 0);
  expectEditing(2);
}

// 0.1 + 0.2 is no number of 15 digits: stored from its text it would be another one.
TEST_F(EditingValues, ClickingAboutLeavesTheValuesToTheLastBit) {
  const double value = 0.1 + 0.2;
  model.X0[1] = value;
  clickDone();
  edit(0);
  for (const int row : {1, 2, 1, 0}) clickCell(row);
  press(Qt::Key_Down);
  press(Qt::Key_Down);
  clickDone();
  EXPECT_EQ(model.X0, (Values{0, value, 1}));
}

TEST_F(EditingValues, ATypedDigitReplacesTheValueAtOnce) {
  press(Qt::Key_Down);
  type("7");
  EXPECT_EQ(model.X0, (Values{0, 7, 1}));
  EXPECT_EQ(cell(1), "7");
  EXPECT_EQ(entry().toolTip(), QStringLiteral("A(1,1)=7"));
  expectEditing(1);
}

TEST_F(EditingValues, TheNextCharacterFollowsTheFirstOne) {
  type("-2.5E-3");
  EXPECT_EQ(cell(0), "-2.5E-3");
  EXPECT_EQ(model.X0[0], -2.5e-3);
}

TEST_F(EditingValues, TheSameDigitInAnotherCellIsStoredToo) {
  type("7");
  press(Qt::Key_Return);
  press(Qt::Key_Down);
  type("7");
  press(Qt::Key_Return);
  press(Qt::Key_Down);
  type("7");
  EXPECT_EQ(model.X0, (Values{7, 7, 7}));
  EXPECT_THAT(column(), ElementsAre("7", "7", "7"));
}

TEST_F(EditingValues, EveryCharacterOfANumberStartsTyping) {
  for (const QChar character : QStringLiteral("+-.0123456789Ee")) {
    clickCell(1);
    press(Qt::Key_Return);
    type(character);
    EXPECT_EQ(entry().text(), QString(character));
    EXPECT_EQ(cell(1), QString(character).toStdString());
  }
}

TEST_F(EditingValues, AnotherKeyOpensTheEditorWithTheTextItHas) {
  press(Qt::Key_Down);
  for (const Qt::Key key : {Qt::Key_X, Qt::Key_Space, Qt::Key_Return, Qt::Key_Backspace}) {
    press(key);
    expectEditing(1);
    EXPECT_EQ(entry().text(), QStringLiteral("0.5"));
    EXPECT_EQ(entry().selectedText(), QStringLiteral("0.5"));
    EXPECT_EQ(entry().toolTip(), QStringLiteral("A(1,1)=0.5"));
    press(Qt::Key_Return);
  }
  EXPECT_EQ(model.X0, (Values{0, 0.5, 1}));
}

TEST_F(EditingValues, EveryKeystrokeIsStored) {
  clickCell(1);
  const std::vector<std::pair<const char*, double>> keys{{"1", 1},    {"2", 12},   {".", 12},
                                                         {"5", 12.5}, {"e", 12.5}, {"1", 125}};
  for (const auto& [key, value] : keys) {
    type(key);
    EXPECT_EQ(model.X0[1], value);
    EXPECT_EQ(cell(1), entry().text().toStdString());
  }
}

TEST_F(EditingValues, APartlyTypedNumberIsItsNumericPrefix) {
  clickCell(1);
  type("1e");
  EXPECT_EQ(model.X0[1], 1);
  EXPECT_EQ(cell(1), "1e");
  clickCell(2);
  type("-");
  EXPECT_EQ(model.X0[2], 0);
}

TEST_F(EditingValues, OtherCharactersAndBackspaceDoNothing) {
  clickCell(1);
  type("25");
  press(Qt::Key_Backspace);
  type(" ,ax$\"");
  press(Qt::Key_Escape);
  EXPECT_EQ(entry().text(), QStringLiteral("25"));
  EXPECT_EQ(model.X0[1], 25);
  expectEditing(1);
}

TEST_F(EditingValues, DeleteAndTypingOverASelectionTakeCharactersAway) {
  clickCell(1);
  type("25");
  press(Qt::Key_Home);
  press(Qt::Key_Delete);
  EXPECT_EQ(model.X0[1], 5);
  press(Qt::Key_A, Qt::ControlModifier);
  type("3");
  EXPECT_EQ(model.X0[1], 3);
  press(Qt::Key_A, Qt::ControlModifier);
  press(Qt::Key_Delete);
  EXPECT_EQ(cell(1), "");
  EXPECT_EQ(model.X0[1], 0);
}

TEST_F(EditingValues, PastedTextPassesTheFilterOfTheKeys) {
  QGuiApplication::clipboard()->setText(QStringLiteral(" 2,5\tabc1\n"));
  clickCell(1);
  press(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(entry().text(), QStringLiteral("251"));
  EXPECT_EQ(cell(1), "251");
  EXPECT_EQ(model.X0[1], 251);
}

TEST_F(EditingValues, PastedTextOfWhichNothingIsKeptLeavesTheValue) {
  QGuiApplication::clipboard()->setText(QStringLiteral("abc"));
  clickCell(1);
  press(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(entry().selectedText(), QStringLiteral("0.5"));
  EXPECT_EQ(model.X0[1], 0.5);
}

TEST_F(EditingValues, TheMenusPasteFiltersToo) {
  QGuiApplication::clipboard()->setText(QStringLiteral("x=7.5"));
  clickCell(1);
  QContextMenuEvent request(QContextMenuEvent::Keyboard, entry().rect().center(), QCursor::pos());
  QApplication::sendEvent(&entry(), &request);
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  for (QAction* action : menu->actions())
    if (action->text().startsWith(QStringLiteral("&Paste"))) action->trigger();
  menu->close();
  EXPECT_EQ(entry().text(), QStringLiteral("7.5"));
  EXPECT_EQ(model.X0[1], 7.5);
}

TEST_F(EditingValues, DroppedTextIsFilteredToo) {
  clickCell(1);
  QMimeData text;
  text.setText(QStringLiteral("(8)"));
  const QPointF end(entry().width() - 1, 1);
  QDragEnterEvent enter(end.toPoint(), Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&entry(), &enter);
  QDropEvent drop(end, Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&entry(), &drop);
  EXPECT_EQ(entry().text(), QStringLiteral("0.58"));
  EXPECT_EQ(model.X0[1], 0.58);
}

TEST_F(EditingValues, AProgramsChangeIsStoredWhileTheEditorIsVisible) {
  entry().setText(QStringLiteral("9"));
  EXPECT_EQ(model.X0[0], 0);
  clickCell(0);
  entry().setText(QStringLiteral("9"));
  EXPECT_EQ(model.X0[0], 9);
  EXPECT_EQ(cell(0), "9");
}

class MovingAboutValues : public ValuesWindowTest {
 protected:
  void SetUp() override { edit(0); }
};

TEST_F(MovingAboutValues, EnterGivesTheFocusBackToTheGridAndNothingElse) {
  clickCell(1);
  type("4");
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
    entry().setFocus();
    press(key);
    EXPECT_EQ(focusName(), "MSFlexGridVars");
    EXPECT_TRUE(entry().isVisible());
    EXPECT_EQ(grid().Row(), 1);
    EXPECT_EQ(cell(1), "4");
  }
}

TEST_F(MovingAboutValues, UpAndDownTakeTheEditorAlong) {
  clickCell(1);
  press(Qt::Key_Down);
  expectEditing(2);
  EXPECT_EQ(entry().selectedText(), QStringLiteral("1"));
  press(Qt::Key_Up);
  press(Qt::Key_Up);
  expectEditing(0);
  EXPECT_EQ(model.X0, (Values{0, 0.5, 1}));
}

TEST_F(MovingAboutValues, AtAnEdgeTheFocusIsOnTheGridAndTheEditorStays) {
  const auto expectAtTheEdge = [&](Qt::Key key, int row) {
    clickCell(row);
    const QRect before = entry().geometry();
    press(key);
    EXPECT_EQ(focusName(), "MSFlexGridVars");
    EXPECT_EQ(grid().Row(), row);
    EXPECT_EQ(grid().Col(), 1);
    EXPECT_TRUE(entry().isVisible());
    EXPECT_EQ(entry().geometry(), before);
  };
  expectAtTheEdge(Qt::Key_Up, 0);
  expectAtTheEdge(Qt::Key_Down, 2);
  for (int row = 0; row < 3; ++row) {
    expectAtTheEdge(Qt::Key_Left, row);
    expectAtTheEdge(Qt::Key_Right, row);
  }
}

TEST_F(MovingAboutValues, TypingAfterAnArrowReplacesTheValue) {
  clickCell(0);
  type("5");
  press(Qt::Key_Down);
  type("6");
  press(Qt::Key_Down);
  type("7.5");
  EXPECT_EQ(model.X0, (Values{5, 6, 7.5}));
}

// Enter leaves the editor visible; the arrows of the grid must not leave it behind, over a cell that is not current.
TEST_F(MovingAboutValues, TheEditorGoesAlongWhereTheGridMoves) {
  clickCell(0);
  type("5");
  press(Qt::Key_Return);
  press(Qt::Key_Down);
  EXPECT_EQ(grid().Row(), 1);
  EXPECT_EQ(entry().text(), QStringLiteral("0.5"));
  EXPECT_EQ(entry().geometry(), placeOfCell());
  press(Qt::Key_End, Qt::ControlModifier);
  expectAgreement();
  clickDone();
  EXPECT_EQ(model.X0, (Values{5, 0.5, 1}));
}

class ManyValues : public ValuesWindowTest {
 protected:
  ManyValues() : ValuesWindowTest(Empty()) {
    declare("1", "x");
    specify(0, "0", "4999", "5000", "1");
    edit(0);
  }
};

TEST_F(ManyValues, ScrollingTakesTheEditorAlongAndOutOfSight) {
  clickCell(3);
  grid().verticalScrollBar()->setValue(1);
  EXPECT_EQ(entry().geometry(), placeOfCell());
  grid().verticalScrollBar()->setValue(1000);
  EXPECT_TRUE(entry().geometry().isEmpty());
  type("8");
  expectEditing(3);
  EXPECT_EQ(model.X0[3], 8);
}

TEST_F(ManyValues, AnotherSizeOfTheWindowTakesTheEditorAlong) {
  clickCell(3);
  values().resize(values().width() + 200, values().height() + 100);
  EXPECT_TRUE(QTest::qWaitFor([&] { return entry().geometry() == placeOfCell(); }));
  EXPECT_EQ(entry().width(), grid().CellWidth());
}

TEST_F(ManyValues, TypingIntoAGridThatWasScrolledAwayGoesToTheCurrentCell) {
  grid().verticalScrollBar()->setValue(1000);
  type("8");
  expectEditing(0);
  EXPECT_EQ(model.X0[0], 8);
}

TEST_F(ManyValues, OpenAndStepWithoutAPause) {
  constexpr int kPause = 1000;  // milliseconds; far below without instrumentation
  clickDone();
  QElapsedTimer timer;
  timer.start();
  edit(0);
  EXPECT_LT(timer.restart(), kPause);
  clickCell(0);
  constexpr int kSteps = 100;
  for (int n = 0; n < kSteps; ++n) press(Qt::Key_Down);
  expectEditing(kSteps);
  EXPECT_LT(timer.elapsed(), kPause);
}

}  // namespace
}  // namespace tavimor
