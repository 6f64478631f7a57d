#pragma once

#include "model/Dimension.h"
#include "ui/controls/form.h"
#include "ui/data_windows/frmVars_controls.h"

namespace tavimor {

/// The window in which the user overwrites and deletes the values of variable V; the main window, which is disabled
/// meanwhile, has filled the grid. A text box floats over the current cell of the grid and always holds its text. While
/// it is visible, every change of its text is stored at once, in the grid and in the model.
class frmVars : public Form, public VarsControls {
  Q_OBJECT

 public:
  explicit frmVars(Dimension& model);

  /// Shows the window above another one, with the value of this row as the current one.
  void open(Form& above, Long row);

  /// Shows what the grid has got anew: the value of this row becomes the current one.
  void showAnew(Long row);

  /// Shows a hint in the status line.
  void tell(const QString& hint) { stbStatus->showHint(hint); }

 signals:
  /// Value i of variable v is about to be changed to this one.
  void ValueChanging(Long v, Long i, double newValue);

  /// Value r of variable v is about to be deleted.
  void ValueDeleting(Long v, Long r);

  /// A value of variable v was deleted: it has one less, and the function belongs to another grid.
  void ValueDeleted(Long v);

  /// The user has done with the window.
  void Finished();

 protected:
  void Form_Unload() override;

 private:
  void connectEvents();
  void Form_Load();

  void MSFlexGridVars_Click();
  void MSFlexGridVars_KeyPress(QChar character);
  void MSFlexGridVars_RowColChange();
  void txtDataEntry_KeyPress(QChar& character);
  void txtDataEntry_KeyDown(int& keyCode);
  void txtDataEntry_GotFocus();
  void txtDataEntry_Change();
  void cmdDelete_Click();
  void cmdExit_Click();

  void moveEntry();
  void showEntry();
  void placeEntry();
  void step(int rows, int cols);
  void store(const std::string& text);
  void finish();

  Dimension& model_;
  bool isDeleting_ = false;
};

}  // namespace tavimor
