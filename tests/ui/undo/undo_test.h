#pragma once

#include "ui/data_windows/frmFun.h"
#include "ui/support/values_window_test.h"

namespace tavimor {

/// The main window and its data windows, undoing by keys.
class UndoTest : public ValuesWindowTest {
 protected:
  UndoTest() : ValuesWindowTest(Empty()) {}

  /// Into the window that is in front; a field that has something of its own to undo takes the keys for itself.
  void undo(int times = 1);
  void redo(int times = 1);

  std::string undoText() { return item("mnuUndo").text().remove('&').toStdString(); }
  std::string redoText() { return item("mnuRedo").text().remove('&').toStdString(); }
  std::string hint() { return label("lblMessage").text().toStdString(); }

  /// Saves twoVariables() as "problem" and opens it.
  void openTwoVariables();

  /// Opens the function window at a point.
  void review(const QString& point);
  static frmFun& function();
  static TextBox& functionBox(const char* name);

  static double value(const Dimension& model, Long i, Long j) { return model.F(i, j, 0, 0); }
};

}  // namespace tavimor
