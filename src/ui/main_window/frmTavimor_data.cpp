#include "model/add_values.h"
#include "model/capture_specs.h"
#include "model/grid_walk.h"
#include "model/value_lists.h"
#include "runtime/val.h"
#include "ui/controls/input_box.h"
#include "ui/data_windows/frmFun.h"
#include "ui/main_window/frmTavimor.h"

namespace tavimor {

void frmTavimor::cmdEditVars_Click(Long Index) {
  CaptureSpecs();
  blocks.at(Index).chkSpaced->setChecked(false);
  model_.V = Index;
  giveValuesAndFixTheirNumber(Index);
  EditVarValues(Index, 0);
}

void frmTavimor::cmdAddVars_Click(Long Index) {
  CaptureSpecs();
  blocks.at(Index).chkSpaced->setChecked(false);
  model_.V = Index;
  const QString name = QString::fromStdString(model_.VarName[Index]);
  model_.InText = InputBox(QStringLiteral("How many additional values for variable %1?").arg(name),
                           QStringLiteral("Add values for variable %1").arg(name));
  model_.AddCount[Index] = ValLong(model_.InText);
  if (model_.AddCount[Index] == 0) return;
  const Long firstAdded = addLongs(model_.LastPoint[Index], 1);
  addValues(model_, Index);  // before anything is seen of it: it may be refused
  showFileName();
  blocks.at(Index).txtPoints->setEnabled(false);
  numberOfValuesChanged(Index);
  EditVarValues(Index, firstAdded);
}

void frmTavimor::giveValuesAndFixTheirNumber(Long v) {
  if (!model_.ValuesGiven[v]) blocks.at(v).txtPoints->setEnabled(false);
  giveDefaultValues(model_, v);
}

void frmTavimor::cmdEditFun_Click() {
  if (const auto start = askForStartingSet()) openFunctionWindow(*start);
}

void frmTavimor::openFunctionWindow(const PerVariable<Long>& start) {
  RegenerateSpacedValues(model_, spacedMarks(specFields()));
  CaptureSpecs();
  for (Long v = 0; v <= model_.LastVar; ++v) {
    blocks.at(v).txtPoints->setEnabled(false);
    giveDefaultValues(model_, v);
  }
  model_.StartIdx = start;
  disable();
  auto* window = new frmFun(model_);
  connect(window, &frmFun::Finished, this, &Form::enable);
  window->showAbove(*this);
}

std::optional<PerVariable<Long>> frmTavimor::askForStartingSet() {
  for (;;) {
    model_.InText = InputBox(QStringLiteral("Enter indices of starting set, separated by commas:"),
                             QStringLiteral("Review of function"));
    if (model_.InText.empty()) return std::nullopt;
    if (const auto start = gridPointFromText(model_, model_.InText)) return start;
  }
}

}  // namespace tavimor
