#include "ui/main_window/step_recorder.h"

#include <utility>

#include "model/value_lists.h"
#include "runtime/number_text.h"

namespace tavimor {

namespace {

std::vector<std::string> linesOf(const ListBox& list) {
  std::vector<std::string> lines;
  for (int row = 0; row < list.count(); ++row) lines.push_back(list.text(row).toStdString());
  return lines;
}

std::string pointText(const Problem& problem, const PerVariable<Long>& point) {
  std::string text;
  for (Long k = 0; k <= problem.LastVar; ++k) text += (text.empty() ? "" : ",") + numberText(point[k]);
  return '(' + text + ')';
}

// Whatever the window around it is.
bool isOpen(const QLineEdit& field) { return field.isEnabledTo(field.parentWidget()); }

Stage stageOf(const MainControls& controls) {
  if (isOpen(*controls.txtOrder)) return Stage::Start;
  return isOpen(*controls.txtVarNams) ? Stage::NumberGiven : Stage::NamesGiven;
}

}  // namespace

StepRecorder::StepRecorder(MainControls& controls, Dimension& model) : controls_(controls), model_(model) {
  settledTexts_ = entries();
}

Entries StepRecorder::entries() const {
  Entries entries;
  entries.txtOrder = controls_.txtOrder->text().toStdString();
  entries.txtVarNams = controls_.txtVarNams->text().toStdString();
  for (std::size_t k = 0; k < controls_.blocks.size(); ++k) {
    entries.fields[k] = fieldsOf(controls_.blocks[k]);
    entries.isNumberFixed[k] = !isOpen(*controls_.blocks[k].txtPoints);
  }
  entries.stage = stageOf(controls_);
  return entries;
}

std::optional<Change> StepRecorder::typed() const { return typedChange(settledTexts_, entries(), model_.VarName); }

void StepRecorder::takeTyped() {
  if (model_.LoadingFile) return;
  if (const std::optional<Change> change = typed()) begin(*change);
}

// The texts count as they were when the last step ended; nothing else has been changed yet.
void StepRecorder::begin(const Change& change) {
  Entries before = entries();
  static_cast<EntryTexts&>(before) = settledTexts_;
  history_.begin(change, before, model_);
  settle();
}

void StepRecorder::settle() {
  settledTexts_ = entries();
  emit Changed();
}

void StepRecorder::keepProblem() {
  for (Long v = 0; v < kMaxVariables; ++v) keepValues(v);
  keepFunction();
  keepResults();
}

void StepRecorder::keepValues(Long v) { history_.keepValues(v, valueList(model_, v)); }

void StepRecorder::keepFunction() { history_.keepFunction(model_.F); }

void StepRecorder::replaceFunction(const PerVariable<Long>& last) {
  Table4 next;
  next.redim(last);
  history_.keepFunction(std::exchange(model_.F, std::move(next)));
}

// The figures stay in the model: one that has no value in the next fit keeps the last one.
void StepRecorder::keepResults() {
  Results results{{}, linesOf(*controls_.lstCoeff)};
  static_cast<Statistics&>(results.fit) = model_;
  if (model_.FitDone) {
    results.fit.FitDone = true;
    results.fit.Coef = model_.Coef;
    results.fit.FitGrid = std::exchange(model_.FitGrid, Table4());
  }
  history_.keepResults(std::move(results));
}

void StepRecorder::valueChanging(Long v, Long i, double newValue) {
  ValuePlace place{v, {}};
  place.index[v] = i;
  history_.beginValue({"value " + numberText(i) + " of " + model_.VarName[v], v}, place, newValue, model_);
  emit Changed();
}

void StepRecorder::functionValueChanging(const PerVariable<Long>& point, double newValue) {
  history_.beginValue({"function value at " + pointText(model_, point), {}}, {{}, point}, newValue, model_);
  emit Changed();
}

void StepRecorder::valueDeleting(Long v, Long r) {
  begin({"value " + numberText(r) + " of " + model_.VarName[v] + " deleted", v});
  keepValues(v);
  keepFunction();
}

// Values that were typed over equally spaced ones go when those are made anew: a step of its own, if the last one was
// such a value.
void StepRecorder::keepReplaced(Values before) {
  for (Long v = 0; v < kMaxVariables; ++v) {
    if (before[v] == valueList(model_, v)) continue;
    if (history_.lastIsOfOneNumber()) begin({"equal spacing of " + model_.VarName[v], v});
    history_.keepValues(v, std::move(before[v]));
  }
}

void StepRecorder::setSaved() {
  history_.setSaved();
  emit Changed();
}

std::optional<Change> StepRecorder::toUndo() const {
  if (std::optional<Change> change = typed()) return change;
  return history_.canUndo() ? std::optional(history_.toUndo()) : std::nullopt;
}

std::optional<Change> StepRecorder::toRedo() const {
  return history_.canRedo() && !typed() ? std::optional(history_.toRedo()) : std::nullopt;
}

Shown StepRecorder::shown() const { return {entries(), linesOf(*controls_.lstCoeff)}; }

std::optional<Exchanged> StepRecorder::undo(Shown& toShow) {
  takeTyped();
  if (!history_.canUndo()) return std::nullopt;
  toShow = shown();
  return history_.undo(model_, toShow);
}

std::optional<Exchanged> StepRecorder::redo(Shown& toShow) {
  takeTyped();
  if (!history_.canRedo()) return std::nullopt;
  toShow = shown();
  return history_.redo(model_, toShow);
}

}  // namespace tavimor
