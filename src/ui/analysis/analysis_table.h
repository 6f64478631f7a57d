#pragma once

#include <QAbstractTableModel>
#include <QTableView>
#include <functional>
#include <memory>
#include <vector>

#include "analysis/analysis.h"

namespace tavimor {

/// A table over results that nobody changes any more: it holds the order of the rows and nothing else.
class ResultTable : public QAbstractTableModel {
  Q_OBJECT

 public:
  /// What a cell is sorted by: a number, or nothing where there is none.
  static constexpr int kSortRole = Qt::UserRole;

  using QAbstractTableModel::QAbstractTableModel;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

  /// By the numbers of a column, those without one behind all others; column -1 is the order of the results.
  void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

  /// The row of the results that stands in a row of the table.
  std::size_t resultAt(int row) const { return order_.at(static_cast<std::size_t>(row)); }

 protected:
  struct Column {
    QString title;
    QString meaning;  // the tool tip
  };

  /// Shows other results, in the chosen order.
  void showResults(std::size_t count, std::vector<Column> columns);

  virtual QVariant cell(std::size_t result, int column, int role) const = 0;

 private:
  void putInOrder();

  std::vector<Column> columns_;
  std::vector<std::size_t> order_;
  int sortColumn_ = -1;
  Qt::SortOrder sortOrder_ = Qt::AscendingOrder;
};

/// A view of such a table: rows are selected; Ctrl+C and the context menu copy the selected rows, or all where none is,
/// with the headings, separated by tabs.
class ResultView : public QTableView {
  Q_OBJECT

 public:
  explicit ResultView(const QString& name, const QString& accessibleName);

  void showTable(ResultTable& table);
  QString copiedText() const;

  /// Columns as wide as what is on screen needs, but no wider than so many characters.
  void fitColumns(int most = 40);
};

}  // namespace tavimor
