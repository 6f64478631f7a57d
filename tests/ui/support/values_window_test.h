#pragma once

#include "ui/data_windows/frmVars.h"
#include "ui/support/main_window_test.h"

namespace tavimor {

/// The main window with the problem of twoVariables() open, and the values window, driven by keys and clicks.
class ValuesWindowTest : public MainWindowTest {
 protected:
  /// Without a problem.
  struct Empty {};

  ValuesWindowTest();
  explicit ValuesWindowTest(Empty /*unused*/) {}

  /// The values window that is loaded now, on screen or not.
  static frmVars& values();
  static FlexGrid& grid() { return *values().MSFlexGridVars; }
  static TextBox& entry() { return *values().txtDataEntry; }

  /// Brings the block of variable k on screen and presses its button. The values window is active afterwards.
  void edit(Long k);
  void add(Long k, const QString& count);

  /// Each key into the control that has the focus when it comes: the first one takes it from the grid to the editor.
  void type(const QString& text);

  /// Clicks into the grid and on its Delete button.
  static void clickCell(int row, int col = 1);
  static void clickDelete() { QTest::mouseClick(values().cmdDelete, Qt::LeftButton); }

  static std::string cell(int row, int col = 1) { return grid().TextMatrix(row, col).toStdString(); }

  /// The values column from top to bottom.
  static std::vector<std::string> column();

  /// Where the editor must be to cover the current cell.
  static QRect placeOfCell();

  /// The editor is visible over the cell of this row, has the focus and shows the cell's text.
  void expectEditing(int row);

  /// Grid, editor, model and main window tell the same.
  void expectAgreement();

 private:
  void showBlock(Long k);
};

}  // namespace tavimor
