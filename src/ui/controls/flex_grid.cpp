#include "ui/controls/flex_grid.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QStyledItemDelegate>
#include <algorithm>

#include "ui/controls/fonts.h"
#include "ui/controls/typed_character.h"

namespace tavimor {

namespace {

Qt::Alignment toolkitAlignment(CellAlignment alignment) {
  switch (alignment) {
    case CellAlignment::LeftCentre: return Qt::AlignLeft | Qt::AlignVCenter;
    case CellAlignment::CentreCentre: return Qt::AlignCenter;
    case CellAlignment::RightCentre: return Qt::AlignRight | Qt::AlignVCenter;
  }
  return {};
}

class CellDelegate : public QStyledItemDelegate {
 public:
  explicit CellDelegate(FlexGrid& grid) : QStyledItemDelegate(&grid), grid_(grid) {}

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    option->displayAlignment = toolkitAlignment(grid_.ColAlignment(index.column()));
    if (index.row() >= grid_.FixedRows() && index.column() >= grid_.FixedCols()) return;
    option->backgroundBrush = option->palette.button();
    option->palette.setBrush(QPalette::Text, option->palette.buttonText());
  }

 private:
  const FlexGrid& grid_;
};

}  // namespace

FlexGrid::FlexGrid(const QString& name, QWidget* parent) : QTableWidget(parent) {
  setObjectName(name);
  setFont(verdanaFont());
  setItemDelegate(new CellDelegate(*this));
  setSelectionMode(SingleSelection);
  setEditTriggers(NoEditTriggers);
  setTabKeyNavigation(false);
  setFocusPolicy(Qt::StrongFocus);
  setHorizontalScrollMode(ScrollPerPixel);
  setTextElideMode(Qt::ElideMiddle);
  setWordWrap(false);
  horizontalHeader()->hide();
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  // Queued: the signal comes before the columns have their new places.
  connect(horizontalHeader(), &QHeaderView::sectionResized, this, &FlexGrid::CellsMoved, Qt::QueuedConnection);
  connect(this, &QTableWidget::currentCellChanged, this, &FlexGrid::RowColChange);
}

void FlexGrid::setRows(int rows) {
  setRowCount(rows);
  leaveLabels();
}

void FlexGrid::setCols(int cols) {
  setColumnCount(cols);
  leaveLabels();
}

void FlexGrid::setFixedRows(int rows) {
  fixedRows_ = rows;
  leaveLabels();
}

void FlexGrid::setFixedCols(int cols) {
  fixedCols_ = cols;
  leaveLabels();
}

void FlexGrid::leaveLabels() {
  if (Rows() > fixedRows_ && Cols() > fixedCols_)
    setCurrentCell(std::max(Row(), fixedRows_), std::max(Col(), fixedCols_));
}

QString FlexGrid::TextMatrix(int row, int col) const {
  const QTableWidgetItem* cell = item(row, col);
  return cell == nullptr ? QString() : cell->text();
}

void FlexGrid::setTextMatrix(int row, int col, const QString& text) {
  if (QTableWidgetItem* cell = item(row, col); cell != nullptr)
    cell->setText(text);
  else
    setItem(row, col, new QTableWidgetItem(text));
}

void FlexGrid::setColAlignment(int col, CellAlignment alignment) {
  alignments_[col] = alignment;
  viewport()->update();
}

void FlexGrid::setRowHeight(int height) {
  verticalHeader()->setMinimumSectionSize(height);
  verticalHeader()->setDefaultSectionSize(height);
}

QRect FlexGrid::currentCell() const { return visualRect(currentIndex()).translated(viewport()->pos()); }

QModelIndex FlexGrid::beside(const QModelIndex& cell) const {
  return model()->index(std::max(cell.row(), fixedRows_), std::max(cell.column(), fixedCols_));
}

void FlexGrid::keyPressEvent(QKeyEvent* event) {
  if (!isTypedCharacter(*event)) {
    QTableWidget::keyPressEvent(event);
    return;
  }
  event->accept();
  emit KeyPress(event->text()[0]);
}

void FlexGrid::mousePressEvent(QMouseEvent* event) {
  const QModelIndex cell = indexAt(event->position().toPoint());
  isPressed_ = event->button() == Qt::LeftButton && cell.isValid();
  if (isPressed_) setCurrentIndex(beside(cell));
}

// A drag neither selects nor leads to another cell.
void FlexGrid::mouseMoveEvent(QMouseEvent* event) { event->accept(); }

void FlexGrid::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !isPressed_) return;
  isPressed_ = false;
  emit Click();
}

void FlexGrid::mouseDoubleClickEvent(QMouseEvent* event) { mousePressEvent(event); }

QModelIndex FlexGrid::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
  const QModelIndex cell = QTableWidget::moveCursor(action, modifiers);
  return cell.isValid() ? beside(cell) : cell;
}

void FlexGrid::scrollContentsBy(int dx, int dy) {
  QTableWidget::scrollContentsBy(dx, dy);
  emit CellsMoved();
}

void FlexGrid::resizeEvent(QResizeEvent* event) {
  QTableWidget::resizeEvent(event);
  emit CellsMoved();
}

}  // namespace tavimor
