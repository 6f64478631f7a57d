#include "ui/analysis/analysis_table.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <algorithm>
#include <cmath>
#include <numeric>

#include "ui/controls/fonts.h"

namespace tavimor {

int ResultTable::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(order_.size());
}

int ResultTable::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

QVariant ResultTable::data(const QModelIndex& index, int role) const {
  return index.isValid() ? cell(resultAt(index.row()), index.column(), role) : QVariant();
}

QVariant ResultTable::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) return QAbstractTableModel::headerData(section, orientation, role);
  const Column& column = columns_.at(static_cast<std::size_t>(section));
  if (role == Qt::DisplayRole) return column.title;
  return role == Qt::ToolTipRole && !column.meaning.isEmpty() ? QVariant(column.meaning) : QVariant();
}

void ResultTable::showResults(std::size_t count, std::vector<Column> columns) {
  beginResetModel();
  columns_ = std::move(columns);
  order_.resize(count);
  putInOrder();
  endResetModel();
}

void ResultTable::sort(int column, Qt::SortOrder order) {
  emit layoutAboutToBeChanged();
  const QModelIndexList before = persistentIndexList();
  std::vector<std::size_t> results;
  for (const QModelIndex& index : before) results.push_back(resultAt(index.row()));
  sortColumn_ = column;
  sortOrder_ = order;
  putInOrder();
  std::vector<int> rowOf(order_.size());
  for (std::size_t row = 0; row < order_.size(); ++row) rowOf[order_[row]] = static_cast<int>(row);
  for (qsizetype n = 0; n < before.size(); ++n)
    changePersistentIndex(before[n], index(rowOf[results[static_cast<std::size_t>(n)]], before[n].column()));
  emit layoutChanged();
}

void ResultTable::putInOrder() {
  std::iota(order_.begin(), order_.end(), std::size_t{0});
  if (sortColumn_ < 0 || sortColumn_ >= columnCount()) return;
  std::vector<double> key;
  for (const std::size_t result : order_) {
    const QVariant number = cell(result, sortColumn_, kSortRole);
    key.push_back(number.isValid() ? number.toDouble() : std::nan(""));
  }
  const auto comesFirst = [&](std::size_t a, std::size_t b) {
    if (std::isnan(key[a]) || std::isnan(key[b])) return !std::isnan(key[a]) && std::isnan(key[b]);
    return sortOrder_ == Qt::AscendingOrder ? key[a] < key[b] : key[b] < key[a];
  };
  std::stable_sort(order_.begin(), order_.end(), comesFirst);
}

ResultView::ResultView(const QString& name, const QString& accessibleName) {
  setObjectName(name);
  setAccessibleName(accessibleName);
  setFont(fixedPitchFont());
  setSelectionBehavior(SelectRows);
  setSelectionMode(ExtendedSelection);
  setTabKeyNavigation(false);
  setWordWrap(false);
  setHorizontalScrollMode(ScrollPerPixel);
  verticalHeader()->hide();
  verticalHeader()->setDefaultSectionSize(fontMetrics().lineSpacing() + fontMetrics().descent());
  auto* copy = new QAction(QStringLiteral("Copy"), this);
  copy->setShortcut(QKeySequence::Copy);
  copy->setShortcutContext(Qt::WidgetShortcut);
  connect(copy, &QAction::triggered, this, [this] { QGuiApplication::clipboard()->setText(copiedText()); });
  addAction(copy);
  setContextMenuPolicy(Qt::ActionsContextMenu);
}

void ResultView::showTable(ResultTable& table) {
  setModel(&table);
  horizontalHeader()->setSortIndicatorClearable(true);
  horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
  setSortingEnabled(true);
}

QString ResultView::copiedText() const {
  QStringList lines, cells;
  for (int column = 0; column < model()->columnCount(); ++column)
    cells << model()->headerData(column, Qt::Horizontal).toString();
  lines << cells.join(QLatin1Char('\t'));
  const bool isAll = selectionModel()->selectedRows().isEmpty();
  for (int row = 0; row < model()->rowCount(); ++row) {
    if (!isAll && !selectionModel()->isRowSelected(row)) continue;
    cells.clear();
    for (int column = 0; column < model()->columnCount(); ++column)
      cells << model()->index(row, column).data().toString();
    lines << cells.join(QLatin1Char('\t'));
  }
  return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

// A longer text is left out in the middle.
void ResultView::fitColumns(int most) {
  const int widest = most * fontMetrics().averageCharWidth();
  resizeColumnsToContents();
  for (int column = 0; column < model()->columnCount(); ++column)
    setColumnWidth(column, std::min(columnWidth(column), widest));
}

}  // namespace tavimor
