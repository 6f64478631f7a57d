#include "ui/tables/table_preview.h"

#include <QHeaderView>
#include <QSignalBlocker>
#include <algorithm>
#include <iterator>

#include "formats/tables/table_records.h"
#include "runtime/text.h"
#include "ui/controls/control_array.h"
#include "ui/controls/fonts.h"

namespace tavimor {

namespace {

constexpr int kRecords = 100;
constexpr int kMostColumns = 50;
constexpr long kLinesBefore = 5;  // shown above a line that is looked for
constexpr int kRoleRow = 0;

QStringList roleCaptions() {
  return {QStringLiteral("Left out"),   QStringLiteral("Variable 1"), QStringLiteral("Variable 2"),
          QStringLiteral("Variable 3"), QStringLiteral("Variable 4"), QStringLiteral("Function")};
}

struct PreviewRecord {
  long line;
  QStringList cells;
};

std::vector<PreviewRecord> recordsFrom(std::string_view text, char separator, long fromLine) {
  std::vector<PreviewRecord> found;
  TableRecords records(text, separator);
  CellSplitter splitter(separator);
  TableRecord record;
  while (std::ssize(found) < kRecords && records.next(record)) {
    if (record.line < fromLine) continue;
    PreviewRecord& shown = found.emplace_back(PreviewRecord{record.line, {}});
    for (const std::string_view cell : splitter.split(record))
      if (shown.cells.size() < kMostColumns) shown.cells << QString::fromStdString(utf8FromBytes(cell));
  }
  return found;
}

}  // namespace

TablePreview::TablePreview(const QString& name) {
  setObjectName(name);
  setAccessibleName(QStringLiteral("Preview"));
  setFont(verdanaFont());
  setEditTriggers(NoEditTriggers);
  setSelectionBehavior(SelectRows);
  setTabKeyNavigation(false);
}

void TablePreview::showTable(std::string_view text, const TableFormat& format, long fromLine) {
  const std::vector<PreviewRecord> records = recordsFrom(text, format.separator, fromLine);
  qsizetype columns = std::ssize(roles_);
  if (fromLine == 1) columns = 0;
  for (const PreviewRecord& record : records) columns = std::max(columns, record.cells.size());
  const std::size_t rolesBefore = roles_.size();
  setRowCount(kRoleRow + 1 + static_cast<int>(records.size()));
  setColumnCount(static_cast<int>(columns));
  roles_.resize(std::min(rolesBefore, static_cast<std::size_t>(columns)));
  while (std::ssize(roles_) < columns) roles_.push_back(makeRole(static_cast<int>(roles_.size())));
  QStringList lines{QString()};
  for (const PreviewRecord& record : records) {
    const int row = static_cast<int>(lines.size());
    for (int column = 0; column < columns; ++column)
      setItem(row, column, new QTableWidgetItem(record.cells.value(column)));
    lines << QString::number(record.line);
  }
  setVerticalHeaderLabels(lines);
}

QComboBox* TablePreview::makeRole(int column) {
  auto* role = new QComboBox;
  role->setObjectName(elementName("cboRole", column));
  role->setAccessibleName(QStringLiteral("Role of column %1").arg(column + 1));
  role->addItems(roleCaptions());
  connect(role, &QComboBox::activated, this, [this, column] { takeRole(column); });
  setCellWidget(kRoleRow, column, role);
  return role;
}

void TablePreview::showRoles(const ImportOutcome& outcome) {
  const bool isList = outcome.form == TableForm::List;
  for (int column = 0; column < std::ssize(roles_); ++column) {
    const QSignalBlocker quiet(roles_[column]);
    const auto index = static_cast<std::size_t>(column);
    const auto variable = std::find(outcome.variables.begin(), outcome.variables.end(), index);
    int role = 0;
    if (variable != outcome.variables.end()) role = static_cast<int>(variable - outcome.variables.begin()) + 1;
    if (!outcome.variables.empty() && index == outcome.function) role = static_cast<int>(ColumnRole::Function);
    roles_[column]->setCurrentIndex(isList ? role : 0);
    roles_[column]->setEnabled(isList);
  }
}

ColumnRole TablePreview::roleOf(int column) const { return static_cast<ColumnRole>(roles_[column]->currentIndex()); }

// A role goes from the column that had it to the one that it is chosen for.
void TablePreview::takeRole(int column) {
  for (int other = 0; other < std::ssize(roles_); ++other) {
    const QSignalBlocker quiet(roles_[other]);
    if (other != column && roleOf(other) == roleOf(column)) roles_[other]->setCurrentIndex(0);
  }
  emit RoleChosen();
}

std::vector<std::string> TablePreview::columnsByRole() const {
  std::vector<std::string> columns;
  for (int role = 1; role <= static_cast<int>(ColumnRole::Function); ++role)
    for (int column = 0; column < std::ssize(roles_); ++column)
      if (roleOf(column) == static_cast<ColumnRole>(role)) columns.push_back(std::to_string(column + 1));
  return columns;
}

int TablePreview::rowOfLine(long line) const {
  for (int row = kRoleRow + 1; row < rowCount(); ++row)
    if (verticalHeaderItem(row)->text().toLong() == line) return row;
  return -1;
}

void TablePreview::showLine(std::string_view text, const TableFormat& format, long line) {
  if (rowOfLine(line) < 0) showTable(text, format, std::max(1L, line - kLinesBefore));
  const int row = rowOfLine(line);
  if (row < 0) return;
  selectRow(row);
  scrollToItem(item(row, 0));
}

}  // namespace tavimor
