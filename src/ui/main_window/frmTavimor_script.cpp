#include "ui/controls/message_box.h"
#include "ui/data_windows/frmEvaluations.h"
#include "ui/main_window/frmTavimor.h"

namespace tavimor {

void frmTavimor::setUpScript() {
  ScriptControl1.setErrorHandler([this] { ScriptControl1_Error(); });
  ScriptControl1.AddObject("sh", sh_, AddMembers::Yes);
  ScriptControl1.ExecuteStatement("halfpi = Atn(1) * 2");
  ScriptControl1.ExecuteStatement("pi = Atn(1) * 4");
  ScriptControl1.ExecuteStatement("e = Exp(1)");
}

void frmTavimor::ScriptControl1_Error() { showWarning(QString::fromStdString(ScriptControl1.Error().Description)); }

void frmTavimor::cmdEvaluations_Click() {
  if (evaluations_ == nullptr || !evaluations_->isOpen()) evaluations_ = new frmEvaluations(model_, ScriptControl1);
  evaluations_->show();
  evaluations_->raise();
  evaluations_->activateWindow();
}

}  // namespace tavimor
