#pragma once

#include <QDialog>
#include <optional>
#include <string_view>

#include "formats/tables/import_table.h"
#include "model/spec_fields.h"
#include "ui/tables/table_dialog_controls.h"

namespace tavimor {

/// A problem made of a table, and the texts that its centres were typed as.
struct TableProblem {
  Problem problem;
  PerVariable<std::string> centres;
};

/// Shows a table, what was taken of it and what is wrong with it. The user changes what was found, gives degrees and
/// centres and creates the problem, as soon as nothing is refused. Every choice is a new look at the whole table.
class TableDialog : public QDialog, private TableDialogControls {
  Q_OBJECT

 public:
  /// The text must live as long as the dialog.
  TableDialog(QWidget* parent, std::string_view text);

  /// Waits for the user. Nothing where the dialog was called off.
  std::optional<TableProblem> ask();

 private:
  void connectControls();
  void cboSeparator_Click();
  void lstFindings_DblClick(int row);
  void look();
  void showFormat();
  void showVariables();
  void showFindings();
  std::vector<TableFinding> findings();
  void addFinding(const TableFinding& finding);

  std::string_view text_;
  ImportOptions told_;  // what the user has chosen; everything else is found
  ImportOutcome outcome_;
};

/// Asks by a dialog what is to become of a table. Nothing where it is called off.
std::optional<TableProblem> problemFromTable(QWidget* parent, std::string_view text);

}  // namespace tavimor
