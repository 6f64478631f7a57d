#pragma once

#include "model/Dimension.h"
#include "script/ScriptHost.h"
#include "ui/controls/form.h"
#include "ui/data_windows/frmEvaluations_controls.h"

namespace tavimor {

/// The window in which the user types a point and reads the fitted function's value there. The main window stays
/// enabled while it is open.
class frmEvaluations : public Form, private EvaluationsControls {
  Q_OBJECT

 public:
  /// Each evaluation also assigns the point to the script variables of those names.
  frmEvaluations(Dimension& model, ScriptHost& script);

 private:
  void Form_Load();
  void cmdCompute_Click();
  void evaluatePoint();
  void txtVarx_GotFocus(int k);

  Dimension& model_;
  ScriptHost& script_;
};

}  // namespace tavimor
