#pragma once

#include "model/Dimension.h"
#include "ui/controls/form.h"
#include "ui/data_windows/frmFun_controls.h"

namespace tavimor {

/// The window in which the user walks over the grid and types the function's value at each point. It opens at the
/// point StartIdx; the main window is disabled while it is open. Every change is stored as it is typed.
class frmFun : public Form, private FunControls {
  Q_OBJECT

 public:
  explicit frmFun(Dimension& model);

  /// Goes to a point, whose values may be others than before.
  void showAnew(const PerVariable<Long>& point);

  /// Shows a hint in the status line.
  void tell(const QString& hint) { stbStatus->showHint(hint); }

 signals:
  /// The function's value at a point, or value i of variable v, is about to be changed to this one.
  void FunctionValueChanging(const PerVariable<Long>& point, double newValue);
  void ValueChanging(Long v, Long i, double newValue);

  /// Another point is shown.
  void PointEntered();

  /// The user has done with the window.
  void Finished();

 protected:
  void Form_Unload() override;

 private:
  void connectEvents();
  void connectRow(Long k);

  void Form_Load();
  void showPoint();
  void tellPoint(const QString& more = {});
  void showFunctionValue();
  void showVariableValue(Long k);
  void readIndices();
  void storeFunctionValue();
  bool isIndexOf(Long k, const TextBox& box) const;
  bool handlersRest() const;
  void takeIndex(Long k, const TextBox& typed);
  void showIndex(TextBox& box, Long index);
  bool mayLeave(Long k, TextBox& box);

  void cmdIncFunIndex_Click();
  void cmdDecFunIndex_Click();
  void cmdIncIndex_Click(Long k);
  void cmdDecIndex_Click(Long k);
  void txtFun_KeyPress(QChar& character);
  void txtFun_Change();
  void txtFunIndex_Change(Long k);
  void txtVarIndex_Change(Long k);
  void txtVar_Change(Long k);
  void txtFunIndex_Validate(Long k, bool& cancel);
  void txtVarIndex_Validate(Long k, bool& cancel);
  void cmdExit_Click();

  Dimension& model_;
};

}  // namespace tavimor
