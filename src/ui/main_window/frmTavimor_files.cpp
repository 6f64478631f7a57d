#include <QStringList>
#include <utility>

#include "formats/foreign_file.h"
#include "formats/restore/replaced_pair.h"
#include "model/salvage_specs.h"
#include "runtime/failure.h"
#include "runtime/number_text.h"
#include "runtime/text.h"
#include "runtime/val.h"
#include "ui/controls/message_box.h"
#include "ui/controls/recent_files.h"
#include "ui/controls/wait_pointer.h"
#include "ui/main_window/frmTavimor.h"
#include "ui/main_window/step_recorder.h"

namespace tavimor {

namespace {

void reportUnopened(const std::string& path, const std::string& reason) {
  showWarning(QStringLiteral("The problem cannot be opened:\n\n%1\n\n%2")
                  .arg(QString::fromStdString(withEscapes(path)), QString::fromStdString(reason)));
}

}  // namespace

void frmTavimor::mnuOpen_Click() {
  cdbFile.ShowOpen();
  if (!cdbFile.FileName.empty()) openFile(cdbFile.FileName);
}

void frmTavimor::openFile(const std::string& path) {
  cdbFile.FileName = refusedFile_ = path;
  try {
    OpenedProblem opened;
    if (openAsLongWork(path, opened) == WorkEnd::CalledOff) return;
    refusedFile_.clear();
    showOpened(std::move(opened), "problem opened");
    nameFile(path);
  } catch (const Failure& failure) {
    reportUnopened(failure.path().empty() ? path : failure.path(), failure.report());
  }
}

// Reading and writing take as long as the files are large; called off, they leave everything as it was.
WorkEnd frmTavimor::openAsLongWork(const std::string& path, OpenedProblem& opened) {
  const WaitPointer hourglass;
  LongWork work(*wrkDisplay, [this] { return isToEnd(); });
  return work.run([&] { opened = openProblem(path, [&work](double share) { work.tellOrLeave(share); }); });
}

WorkEnd frmTavimor::saveAsLongWork(const std::string& path) {
  const WaitPointer hourglass;
  LongWork work(*wrkDisplay, [this] { return isToEnd(); });
  const Progress progress = [&work](double share) { work.tellOrLeave(share); };
  std::optional<std::string> refusal;
  const WorkEnd end =
      work.run([&] { refusal = writeKeepingReplaced(model_, model_, path, keeper_->session(), progress); });
  if (refusal) keeper_->tellRefusal(QString::fromStdString(*refusal));
  return end;
}

// The step has brought a problem that stands in this file.
void frmTavimor::nameFile(const std::string& path) {
  const std::string before = std::exchange(model_.FileName, path);
  steps_->keepFileName(before);
  noteSaved();
}

// The problem as it stands is that of its file.
void frmTavimor::noteSaved() {
  steps_->setSaved();
  keeper_->noteSaved();
  addRecentFile(model_.FileName);
}

void frmTavimor::showOpened(OpenedProblem opened, const char* change) {
  steps_->takeTyped();
  steps_->begin({change, {}});
  steps_->keepProblem();
  model_.LoadingFile = true;
  txtOrder->setEnabled(false);
  txtVarNams->setEnabled(false);
  model_.LastVar = opened.problem.LastVar;
  LoadObjects();
  static_cast<Problem&>(model_) = std::move(opened.problem);
  static_cast<Fit&>(model_) = std::move(opened.fit);
  model_.StartIdx = {};
  for (Long k = 0; k <= model_.LastVar; ++k) {
    blocks[k].txtPoints->setEnabled(false);  // the values are there: their number changes by adding and deleting only
    blocks[k].txtExpansion->setText(QString::fromStdString(opened.fields[k].txtExpansion));
  }
  SetDisplayedSpecs();
  ShowFitIfDone();
  showStage(Stage::NamesGiven);
  model_.LoadingFile = false;
  steps_->settle();
  EditLimit(model_.CurVar - 1);
}

void frmTavimor::SetDisplayedSpecs() {
  txtOrder->setText(QString::fromStdString(numberText(model_.LastVar + 1)));
  QStringList names;
  for (Long k = 0; k <= model_.LastVar; ++k) names << QString::fromStdString(model_.VarName[k]);
  txtVarNams->setText(names.join(QLatin1Char(',')));
  AllSpecFields fields = specFields();
  tavimor::SetDisplayedSpecs(model_, fields);
  for (Long k = 0; k <= model_.LastVar; ++k) {
    blocks[k].lblVar->setText(names[k]);
    showFields(blocks[k], fields[k]);
  }
}

void frmTavimor::LoadObjects() {
  while (std::ssize(blocks) <= model_.LastVar) {
    addBlock();
    connectBlock(static_cast<Long>(blocks.size()) - 1);
  }
  orderTabs();
  PerVariable<Long> terms{}, points{};
  for (Long k = 0; k <= model_.LastVar; ++k) {
    blocks[k].chkSpaced->setChecked(true);
    terms[k] = ValLong(blocks[k].txtTerms->text().toStdString());
    points[k] = ValLong(blocks[k].txtPoints->text().toStdString());
  }
  // By the numbers as they stand: a count is one more than the last index. The tables get their bounds from the model
  // when a field is left, a file read or the specifications captured; until then nothing looks at them.
  model_.Coef.redim(terms);
  model_.F.redim(points);
}

void frmTavimor::mnuSave_Click() {
  if (model_.FileName.empty()) takeSaveName();
  saveIfNamed();
}

void frmTavimor::mnuSaveAs_Click() {
  takeSaveName();
  saveIfNamed();
}

// A dialog that is called off leaves the name of the dialog before it, and the problem is saved there; but never in
// the place of a file that could not be opened or replaced.
void frmTavimor::takeSaveName() {
  const bool isCancelled = cdbFile.ShowSave() == DialogEnd::Cancelled;
  if (isCancelled && !refusedFile_.empty() && cdbFile.FileName == refusedFile_) return;
  refusedFile_.clear();
  model_.FileName = cdbFile.FileName;
}

// The program may have been told to end while the dialog was open: nobody has asked it to save then.
void frmTavimor::saveIfNamed() {
  if (!isEnding() && !model_.FileName.empty()) SaveProblem();
}

// A file of another kind stays, and the next Save asks for another name.
void frmTavimor::SaveProblem() {
  CaptureSpecs();
  try {
    if (saveAsLongWork(model_.FileName) == WorkEnd::Done) noteSaved();
  } catch (const ForeignFile& failure) {
    refusedFile_ = std::exchange(model_.FileName, {});
    showWarning(QString::fromStdString(failure.report() + "\n" + withEscapes(failure.path())));
  }
  showFileName();
}

void frmTavimor::saveCopy(const std::string& path) {
  salvageSpecs(model_, model_, specFields());
  writeKeepingReplaced(model_, model_, path, keeper_->session());
  keeper_->noteSaved();
  keeper_->end(SessionEnd::Closed);
}

}  // namespace tavimor
