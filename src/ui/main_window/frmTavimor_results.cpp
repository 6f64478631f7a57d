#include <QApplication>
#include <QStringList>

#include "model/capture_specs.h"
#include "model/value_lists.h"
#include "report/listing.h"
#include "ui/controls/wait_pointer.h"
#include "ui/main_window/frmTavimor.h"
#include "ui/main_window/step_recorder.h"

namespace tavimor {

void frmTavimor::cmdCompute_Click() {
  const WaitPointer hourglass;
  ClearResults();
  CaptureSpecs();
  model_.FitDone = false;
  Compute();
  showWorth();
  if (!model_.FitDone) return;
  QApplication::beep();
  ShowResults();
  enableWhatNeedsAFit();
  fitFound(ListedFrom::FitMadeNow);
}

void frmTavimor::ClearResults() {
  if (model_.LoadingFile) return;
  steps_->takeTyped();
  steps_->keepResults();
  stbStatus->showResult({});
  lstCoeff->clear();
  model_.FitDone = isPreciseListed_ = false;
  fitDropped();
}

void frmTavimor::CaptureSpecs() {
  steps_->takeTyped();
  StepRecorder::Values before = steps_->values();
  tavimor::CaptureSpecs(model_, specFields());
  fitTablesToSpecs();
  steps_->keepReplaced(std::move(before));
}

// A degree or a number of values can be captured before its field is left, or without the user's having been there;
// the tables then follow here as they do when the field is left.
void frmTavimor::fitTablesToSpecs() {
  if (model_.Coef.last() != model_.Degree) {
    ClearResults();
    model_.Coef.redim(model_.Degree);
  }
  if (model_.F.last() != model_.LastPoint) {
    ClearResults();
    steps_->replaceFunction(model_.LastPoint);
  }
  for (Long v = 0; v <= model_.LastVar; ++v) ResizeVarValues(model_, v);
}

void frmTavimor::ShowResults() {
  TextLines lines;
  if (isPreciseListed_) lines.add(kPreciseListed);
  tavimor::ShowResults(model_, model_, [&lines](const std::string& line) { lines.add(line); });
  lstCoeff->addItems(lines);
  setTermIndices(model_, model_.Degree);  // as the walk over the terms leaves them
}

void frmTavimor::ShowFitIfDone() {
  if (!model_.FitDone) return;
  ShowResults();
  enableWhatNeedsAFit();
  fitFound(ListedFrom::Files);
}

void frmTavimor::enableWhatNeedsAFit() {
  cmdEvaluations->setEnabled(true);
  mnuExport->setEnabled(true);
  mnuCopyTable->setEnabled(true);
}

AllSpecFields frmTavimor::specFields() const {
  AllSpecFields fields;
  for (std::size_t k = 0; k < blocks.size(); ++k) fields[k] = fieldsOf(blocks[k]);
  return fields;
}

}  // namespace tavimor
