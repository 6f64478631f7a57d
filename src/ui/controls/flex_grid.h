#pragma once

#include <QTableWidget>

namespace tavimor {

/// Where a cell's text stands; the numbers are the grid's alignment codes.
enum class CellAlignment { LeftCentre = 1, CentreCentre = 4, RightCentre = 7 };

/// A grid of texts, one cell of which is the current one. Rows and columns count from 0. The first FixedRows rows and
/// FixedCols columns are labels: the keyboard never gets there, and a click on one goes to the cell beside it.
///
/// The cells are as many as Rows and Cols say; one that was given no text is empty. Rows are equally high.
/// Units: pixels of the desktop's scale. CellLeft, CellTop, CellWidth and CellHeight tell where the current cell is
/// inside the grid, its frame included: beside the grid's own place they are coordinates of the grid's parent.
class FlexGrid : public QTableWidget {
  Q_OBJECT

 public:
  explicit FlexGrid(const QString& name, QWidget* parent = nullptr);

  int Rows() const { return rowCount(); }
  int Cols() const { return columnCount(); }
  int FixedRows() const { return fixedRows_; }
  int FixedCols() const { return fixedCols_; }
  void setRows(int rows);
  void setCols(int cols);
  void setFixedRows(int rows);
  void setFixedCols(int cols);

  /// The current cell; -1 where there is none, since all cells are labels.
  int Row() const { return currentRow(); }
  int Col() const { return currentColumn(); }
  void setRow(int row) { setCurrentCell(row, Col()); }
  void setCol(int col) { setCurrentCell(Row(), col); }

  QString TextMatrix(int row, int col) const;
  void setTextMatrix(int row, int col, const QString& text);

  /// The current cell's text.
  QString Text() const { return TextMatrix(Row(), Col()); }
  void setText(const QString& text) { setTextMatrix(Row(), Col(), text); }

  int ColWidth(int col) const { return columnWidth(col); }
  void setColWidth(int col, int width) { setColumnWidth(col, width); }
  CellAlignment ColAlignment(int col) const { return alignments_.value(col, CellAlignment::LeftCentre); }
  void setColAlignment(int col, CellAlignment alignment);
  void setRowHeight(int height);

  int CellLeft() const { return currentCell().left(); }
  int CellTop() const { return currentCell().top(); }
  int CellWidth() const { return currentCell().width(); }
  int CellHeight() const { return currentCell().height(); }

  /// The part of the current cell that is in view, and scrolling until all of it is.
  QRect visibleCell() const { return currentCell() & viewport()->geometry(); }
  void scrollToCell() { scrollTo(currentIndex()); }

 signals:
  /// A cell or a label was clicked; it, or the cell beside it, is the current one.
  void Click();
  /// A typed character, Backspace, Enter and Escape included, shortcuts not.
  void KeyPress(QChar character);
  /// Another cell is the current one.
  void RowColChange();
  /// Cells have moved inside the grid: it was scrolled, or a column or the grid has another size.
  void CellsMoved();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
  void scrollContentsBy(int dx, int dy) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void leaveLabels();
  QModelIndex beside(const QModelIndex& cell) const;
  QRect currentCell() const;

  int fixedRows_ = 0;
  int fixedCols_ = 0;
  QHash<int, CellAlignment> alignments_;
  bool isPressed_ = false;
};

}  // namespace tavimor
