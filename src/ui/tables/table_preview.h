#pragma once

#include <QComboBox>
#include <QTableWidget>
#include <string_view>
#include <vector>

#include "formats/tables/import_table.h"

namespace tavimor {

/// What a column of a table is for, in the order of the choices.
enum class ColumnRole { LeftOut, FirstVariable, SecondVariable, ThirdVariable, FourthVariable, Function };

/// Some records of a table, cut into cells, with the number of their line before each. Above each column of a list
/// stands the choice of its role: cboRole(0) and so on.
class TablePreview : public QTableWidget {
  Q_OBJECT

 public:
  explicit TablePreview(const QString& name);

  /// Shows the records from a line on.
  void showTable(std::string_view text, const TableFormat& format, long fromLine = 1);

  /// Shows the roles of the columns that were taken; none for a cross table.
  void showRoles(const ImportOutcome& outcome);

  /// The columns that have roles, by number, the function last.
  std::vector<std::string> columnsByRole() const;

  /// Brings the record of a line into view and selects it.
  void showLine(std::string_view text, const TableFormat& format, long line);

 signals:
  /// The user has chosen another role for a column.
  void RoleChosen();

 private:
  QComboBox* makeRole(int column);
  ColumnRole roleOf(int column) const;
  void takeRole(int column);
  int rowOfLine(long line) const;

  std::vector<QComboBox*> roles_;
};

}  // namespace tavimor
