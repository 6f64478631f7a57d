#include <algorithm>

#include "model/add_values.h"
#include "model/capture_specs.h"
#include "model/grid_walk.h"
#include "model/value_lists.h"
#include "runtime/number_text.h"
#include "runtime/val.h"
#include "ui/controls/input_box.h"
#include "ui/data_windows/frmFun.h"
#include "ui/main_window/frmTavimor.h"
#include "ui/main_window/step_recorder.h"

namespace tavimor {

void frmTavimor::cmdEditVars_Click(Long Index) {
  CaptureSpecs();
  beginEditing(Index);
  blocks.at(Index).chkSpaced->setChecked(false);
  model_.V = Index;
  giveValuesAndFixTheirNumber(Index);
  steps_->settle();
  EditVarValues(Index, 0);
}

// What the button does before any value is typed can be undone, too.
void frmTavimor::beginEditing(Long v) {
  const SpecBlock& block = blocks.at(v);
  if (!block.chkSpaced->isChecked() && model_.ValuesGiven[v]) return;
  steps_->begin({"edit values of " + model_.VarName[v], v});
  steps_->keepValues(v);
}

void frmTavimor::cmdAddVars_Click(Long Index) {
  CaptureSpecs();
  blocks.at(Index).chkSpaced->setChecked(false);
  model_.V = Index;
  const QString name = QString::fromStdString(model_.VarName[Index]);
  model_.InText = InputBox(QStringLiteral("How many additional values for variable %1?").arg(name),
                           QStringLiteral("Add values for variable %1").arg(name));
  const Long count = ValLong(model_.InText);
  if (count != 0) beginAdding(Index, count);
  model_.AddCount[Index] = count;
  if (count == 0) return steps_->takeTyped();  // the tick is gone
  const Long firstAdded = addLongs(model_.LastPoint[Index], 1);
  const std::string fileBefore = model_.FileName;
  addValues(model_, Index);  // before anything is seen of it: it may be refused
  steps_->keepFileName(fileBefore);
  blocks.at(Index).txtPoints->setEnabled(false);
  numberOfValuesChanged(Index);
  stbStatus->showHint(QStringLiteral("Save writes the file FUNCTION now; Save As keeps the problem elsewhere"));
  EditVarValues(Index, firstAdded);
}

void frmTavimor::beginAdding(Long v, Long count) {
  const char* values = count == 1 ? " value added to " : " values added to ";
  steps_->begin({numberText(count) + values + model_.VarName[v], v});
  steps_->keepValues(v);
  steps_->keepFunction();
}

void frmTavimor::giveValuesAndFixTheirNumber(Long v) {
  if (!model_.ValuesGiven[v]) blocks.at(v).txtPoints->setEnabled(false);
  giveDefaultValues(model_, v);
}

void frmTavimor::cmdEditFun_Click() {
  if (const auto start = askForStartingSet()) openFunctionWindow(*start);
}

void frmTavimor::openFunctionWindow(const PerVariable<Long>& start) {
  steps_->takeTyped();
  StepRecorder::Values before = steps_->values();
  RegenerateSpacedValues(model_, spacedMarks(specFields()));
  CaptureSpecs();
  beginReview();
  for (Long v = 0; v <= model_.LastVar; ++v) {
    blocks.at(v).txtPoints->setEnabled(false);
    giveDefaultValues(model_, v);
  }
  steps_->keepReplaced(std::move(before));
  steps_->settle();
  model_.StartIdx = start;
  disable();
  functionWindow_ = new frmFun(model_);
  connect(functionWindow_, &frmFun::Finished, this, &Form::enable);
  connectSteps(*functionWindow_);
  functionWindow_->showAbove(*this);
}

// A step of its own where a number of values is fixed by it.
void frmTavimor::beginReview() {
  const Entries now = steps_->entries();
  const auto* end = now.isNumberFixed.begin() + model_.LastVar + 1;
  if (std::find(now.isNumberFixed.begin(), end, false) != end) steps_->begin({"edit function", {}});
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
