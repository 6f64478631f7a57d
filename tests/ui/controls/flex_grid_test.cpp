#include "ui/controls/flex_grid.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QScrollBar>
#include <QTest>
#include <QVBoxLayout>

namespace tavimor {
namespace {

/// A grid of three columns, the first one labels, in a window beside a line of text.
class FlexGrids : public testing::Test {
 protected:
  explicit FlexGrids(int rows = 5) {
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(&grid);
    layout->addWidget(&next);
    grid.setCols(3);
    grid.setFixedCols(1);
    grid.setRows(rows);
    window.resize(500, 300);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    grid.setFocus();
    QObject::connect(&grid, &FlexGrid::Click, [this] { ++clicks; });
    QObject::connect(&grid, &FlexGrid::KeyPress, [this](QChar character) { typed += character; });
    QObject::connect(&grid, &FlexGrid::RowColChange, [this] { ++changes; });
    QObject::connect(&grid, &FlexGrid::CellsMoved, [this] { ++moves; });
  }

  QPoint middleOf(int row, int col) { return grid.visualRect(grid.model()->index(row, col)).center(); }
  void click(int row, int col) { QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, middleOf(row, col)); }
  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) { QTest::keyClick(&grid, key, modifiers); }

  void expectCurrent(int row, int col) {
    EXPECT_EQ(grid.Row(), row);
    EXPECT_EQ(grid.Col(), col);
  }

  /// The columns of pixels, from the cell's left edge on, in which the text of a cell is drawn: first and last.
  std::pair<int, int> inkOf(int row, int col) {
    const QRect cell = grid.visualRect(grid.model()->index(row, col)).adjusted(2, 2, -2, -2);
    const QImage image = grid.viewport()->grab(cell).toImage();
    const QRgb paper = image.pixel(0, 0);
    int first = image.width(), last = -1;
    for (int x = 0; x < image.width(); ++x)
      for (int y = 0; y < image.height(); ++y)
        if (image.pixel(x, y) != paper) {
          first = std::min(first, x);
          last = std::max(last, x);
        }
    return {first, image.width() - 1 - last};
  }

  QWidget window;
  FlexGrid grid{QStringLiteral("grid")};
  QLineEdit next;
  int clicks = 0, changes = 0, moves = 0;
  QString typed;
};

TEST_F(FlexGrids, HoldsTextsAndIsEmptyElsewhere) {
  grid.setTextMatrix(2, 1, QStringLiteral("a"));
  grid.setTextMatrix(2, 1, QStringLiteral("b"));
  EXPECT_EQ(grid.TextMatrix(2, 1), QStringLiteral("b"));
  EXPECT_EQ(grid.TextMatrix(1, 2), QString());
  EXPECT_EQ(grid.Rows(), 5);
  EXPECT_EQ(grid.Cols(), 3);
}

TEST_F(FlexGrids, TextIsTheCurrentCells) {
  grid.setRow(3);
  grid.setCol(2);
  grid.setText(QStringLiteral("here"));
  EXPECT_EQ(grid.TextMatrix(3, 2), QStringLiteral("here"));
  EXPECT_EQ(grid.Text(), QStringLiteral("here"));
}

TEST_F(FlexGrids, TheFirstCellThatIsNoLabelIsTheCurrentOne) {
  expectCurrent(0, 1);
  FlexGrid labelsAbove(QStringLiteral("labelsAbove"));
  labelsAbove.setRows(3);
  labelsAbove.setCols(3);
  labelsAbove.setFixedRows(2);
  labelsAbove.setFixedCols(1);
  EXPECT_EQ(labelsAbove.Row(), 2);
  EXPECT_EQ(labelsAbove.Col(), 1);
}

TEST_F(FlexGrids, AGridWithoutCellsHasNoCurrentOne) {
  const FlexGrid empty(QStringLiteral("empty"));
  EXPECT_EQ(empty.Row(), -1);
  EXPECT_EQ(empty.Text(), QString());
}

TEST_F(FlexGrids, TheKeyboardMovesAboutTheCellsAndNeverOntoALabel) {
  grid.setFixedRows(1);
  expectCurrent(1, 1);
  for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Up, Qt::Key_Home, Qt::Key_PageUp}) {
    press(key);
    expectCurrent(1, 1);
  }
  press(Qt::Key_Home, Qt::ControlModifier);
  expectCurrent(1, 1);
  press(Qt::Key_Right);
  press(Qt::Key_Down);
  expectCurrent(2, 2);
  press(Qt::Key_End, Qt::ControlModifier);
  expectCurrent(4, 2);
}

TEST_F(FlexGrids, TabLeavesTheGrid) {
  press(Qt::Key_Tab);
  EXPECT_TRUE(next.hasFocus());
  expectCurrent(0, 1);
}

TEST_F(FlexGrids, TellsOfAnotherCurrentCellAndOfNoOther) {
  press(Qt::Key_Down);
  EXPECT_EQ(changes, 1);
  press(Qt::Key_Left);
  grid.setRow(1);
  EXPECT_EQ(changes, 1);
}

TEST_F(FlexGrids, TypedCharactersAreKeyPressesEnterAndBackspaceIncluded) {
  QTest::keyClicks(&grid, QStringLiteral("7e "));
  press(Qt::Key_Return);
  press(Qt::Key_Backspace);
  EXPECT_EQ(typed, QStringLiteral("7e \r\b"));
  expectCurrent(0, 1);
}

TEST_F(FlexGrids, ArrowsDeleteAndShortcutsAreNoKeyPresses) {
  press(Qt::Key_Down);
  press(Qt::Key_Delete);
  press(Qt::Key_A, Qt::ControlModifier);
  press(Qt::Key_F2);
  EXPECT_EQ(typed, QString());
}

TEST_F(FlexGrids, AClickMakesTheCellTheCurrentOneFirst) {
  int row = -1;
  QObject::connect(&grid, &FlexGrid::Click, [&] { row = grid.Row(); });
  click(3, 2);
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(row, 3);
  expectCurrent(3, 2);
}

TEST_F(FlexGrids, AClickOnALabelGoesToTheCellBesideIt) {
  click(4, 0);
  EXPECT_EQ(clicks, 1);
  expectCurrent(4, 1);
}

TEST_F(FlexGrids, AClickBesideTheCellsIsNone) {
  QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, grid.viewport()->rect().bottomRight());
  EXPECT_EQ(clicks, 0);
  expectCurrent(0, 1);
}

TEST_F(FlexGrids, TheOtherMouseButtonsDoNothing) {
  QTest::mouseClick(grid.viewport(), Qt::RightButton, {}, middleOf(3, 1));
  EXPECT_EQ(clicks, 0);
  expectCurrent(0, 1);
}

TEST_F(FlexGrids, ADragStaysWhereItBegan) {
  QTest::mousePress(grid.viewport(), Qt::LeftButton, {}, middleOf(1, 1));
  QTest::mouseMove(grid.viewport(), middleOf(3, 2));
  QTest::mouseRelease(grid.viewport(), Qt::LeftButton, {}, middleOf(3, 2));
  expectCurrent(1, 1);
  EXPECT_EQ(clicks, 1);
}

TEST_F(FlexGrids, ADoubleClickIsTwoClicks) {
  click(2, 1);
  QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, middleOf(2, 1));
  QTest::mouseRelease(grid.viewport(), Qt::LeftButton, {}, middleOf(2, 1));
  EXPECT_EQ(clicks, 2);
  EXPECT_TRUE(grid.viewport()->findChildren<QWidget*>().isEmpty());
}

TEST_F(FlexGrids, DroppingTheCurrentRowMakesTheOneAboveCurrent) {
  grid.setRow(4);
  grid.setRows(4);
  expectCurrent(3, 1);
  grid.setRow(1);
  grid.setRows(3);
  expectCurrent(1, 1);
}

TEST_F(FlexGrids, AWidgetAtTheCellsPlaceCoversTheCell) {
  grid.setRow(2);
  grid.setCol(2);
  grid.setColWidth(1, 90);
  const QRect place(grid.x() + grid.CellLeft(), grid.y() + grid.CellTop(), grid.CellWidth(), grid.CellHeight());
  const auto cellAt = [&](const QPoint& point) {
    const QModelIndex cell = grid.indexAt(grid.viewport()->mapFrom(&window, point));
    return std::pair{cell.row(), cell.column()};
  };
  EXPECT_EQ(cellAt(place.topLeft()), (std::pair{2, 2}));
  EXPECT_EQ(cellAt(place.bottomRight()), (std::pair{2, 2}));
  EXPECT_EQ(cellAt(place.topLeft() - QPoint(1, 0)), (std::pair{2, 1}));
  EXPECT_EQ(cellAt(place.topLeft() - QPoint(0, 1)), (std::pair{1, 2}));
  constexpr int kLine = 1;  // the cell's own grid line
  EXPECT_EQ(cellAt(place.bottomLeft() + QPoint(0, 1 + kLine)), (std::pair{3, 2}));
}

TEST_F(FlexGrids, ColumnsHaveTheirWidths) {
  grid.setColWidth(1, 123);
  grid.setCol(1);
  EXPECT_EQ(grid.ColWidth(1), 123);
  EXPECT_NEAR(grid.CellWidth(), 123, 1);
}

TEST_F(FlexGrids, TextsStandAsTheirColumnIsAligned) {
  for (int col = 0; col < 3; ++col) {
    grid.setColWidth(col, 120);
    grid.setTextMatrix(3, col, QStringLiteral("88"));
  }
  EXPECT_EQ(grid.ColAlignment(1), CellAlignment::LeftCentre);
  grid.setColAlignment(0, CellAlignment::RightCentre);
  grid.setColAlignment(2, CellAlignment::CentreCentre);
  const auto [right, besideRight] = inkOf(3, 0);
  const auto [left, besideLeft] = inkOf(3, 1);
  const auto [centre, besideCentre] = inkOf(3, 2);
  EXPECT_GT(right, 3 * besideRight);
  EXPECT_GT(besideLeft, 3 * left);
  EXPECT_NEAR(centre, besideCentre, 2);
}

class LongFlexGrids : public FlexGrids {
 protected:
  LongFlexGrids() : FlexGrids(5000) {}
};

TEST_F(LongFlexGrids, TheCurrentCellComesIntoView) {
  press(Qt::Key_End, Qt::ControlModifier);
  expectCurrent(4999, 2);
  EXPECT_EQ(grid.visibleCell(), QRect(grid.CellLeft(), grid.CellTop(), grid.CellWidth(), grid.CellHeight()));
}

TEST_F(LongFlexGrids, ScrolledAwayNothingOfTheCellIsVisibleUntilItIsScrolledTo) {
  const int top = grid.CellTop();
  grid.verticalScrollBar()->setValue(2500);
  EXPECT_LT(grid.CellTop(), 0);
  EXPECT_TRUE(grid.visibleCell().isEmpty());
  grid.scrollToCell();
  EXPECT_EQ(grid.CellTop(), top);
}

TEST_F(LongFlexGrids, TellsWhenCellsMove) {
  grid.verticalScrollBar()->setValue(7);
  EXPECT_EQ(moves, 1);
  grid.setColWidth(1, 77);
  QCoreApplication::processEvents();
  EXPECT_EQ(moves, 2);
  window.resize(window.width() + 50, window.height());
  QCoreApplication::processEvents();
  EXPECT_EQ(moves, 3);
}

}  // namespace
}  // namespace tavimor
