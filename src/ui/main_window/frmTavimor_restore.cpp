#include <QCoreApplication>
#include <QProcess>

#include "runtime/failure.h"
#include "runtime/text.h"
#include "ui/controls/message_box.h"
#include "ui/controls/state_folder.h"
#include "ui/main_window/frmTavimor.h"
#include "ui/main_window/step_recorder.h"
#include "ui/restore/restore_dialog.h"

namespace tavimor {

namespace {

void mentionUnsavedProblems(StatusLine& status, const std::string& folder) {
  if (hasUnsavedProblems(folder))
    status.showResult(QStringLiteral("An earlier session left unsaved work: Tools, Restore... has it"));
}

}  // namespace

void frmTavimor::keepUnsavedWork() {
  mentionUnsavedProblems(*stbStatus, stateFolder());
  keeper_.emplace(stateFolder(), [this] { return sessionProblem(); });
  connect(&*keeper_, &ProblemKeeper::Refused, this, [this](const QString& reason) {
    stbStatus->showResult(QStringLiteral("Unsaved work cannot be kept: %1").arg(reason));
  });
}

// From the first letter of a name on there is something to lose.
std::optional<SessionProblem> frmTavimor::sessionProblem() const {
  const Entries entries = steps_->entries();
  if (entries.stage != Stage::NamesGiven && entries.txtVarNams.empty()) return std::nullopt;
  SessionProblem now;
  if (entries.stage != Stage::NamesGiven) {
    now.typedNames = {entries.txtOrder, entries.txtVarNams, entries.stage == Stage::NumberGiven};
    return now;
  }
  now.problem = model_;
  static_cast<Statistics&>(now.fit) = model_;
  now.fit.FitDone = model_.FitDone;
  now.fit.Coef = model_.Coef;
  now.fields = entries.fields;
  for (std::size_t k = 0; k < blocks.size(); ++k) now.numberIsOpen[k] = !entries.isNumberFixed[k];
  now.file = model_.FileName;
  return now;
}

void frmTavimor::keepForRestore(SessionEnd end) {
  if (keeper_) keeper_->end(end);
}

void frmTavimor::mnuRestore_Click() {
  const OpensIn opensIn = mnuOpen->isEnabled() ? OpensIn::ThisWindow : OpensIn::NewWindow;
  const std::optional<Restorable> chosen = RestoreDialog(this, stateFolder(), opensIn).ask();
  if (!chosen || isEnding()) return;
  if (opensIn == OpensIn::ThisWindow)
    restore(*chosen);
  else
    QProcess::startDetached(QCoreApplication::applicationFilePath(),
                            {QStringLiteral("--restore"), QString::fromStdString(chosen->folder)});
}

void frmTavimor::restoreFolder(const std::string& folder) {
  for (const Restorable& one : restorableProblems(stateFolder()))
    if (one.folder == folder) return restore(one);
  showWarning(QStringLiteral("There is nothing to restore any more in\n%1").arg(QString::fromStdString(folder)));
}

void frmTavimor::restore(const Restorable& chosen) {
  try {
    SessionProblem kept = readKept(chosen.folder);
    if (kept.typedNames)
      showTypedNames(*kept.typedNames);
    else
      showRestored(std::move(kept));
    keeper_->noteRestored(chosen);
    stbStatus->showResult(QStringLiteral("Restored, and not saved yet"));
  } catch (const Failure& failure) {
    showWarning(
        QStringLiteral("The problem cannot be restored:\n\n%1\n\n%2")
            .arg(QString::fromStdString(withEscapes(failure.path())), QString::fromStdString(failure.report())));
  }
}

// A copy without a file: nobody has asked to replace the one that it comes from. The number of values can be typed
// where it could be, and the fields have the texts that stood in them.
void frmTavimor::showRestored(SessionProblem kept) {
  const PerVariable<bool> valuesGiven = kept.problem.ValuesGiven;
  showOpened({std::move(kept.problem), std::move(kept.fit), kept.fields}, "problem restored");
  model_.ValuesGiven = valuesGiven;
  for (Long k = 0; k <= model_.LastVar; ++k) {
    const SpecBlock& block = blocks[k];
    block.txtLL->setText(QString::fromStdString(kept.fields[k].txtLL));
    block.txtUL->setText(QString::fromStdString(kept.fields[k].txtUL));
    block.txtTerms->setText(QString::fromStdString(kept.fields[k].txtTerms));
    block.txtPoints->setEnabled(kept.numberIsOpen[k]);
  }
}

// As if it were typed: the user goes on where that was left.
void frmTavimor::showTypedNames(const TypedNames& typed) {
  txtOrder->setText(QString::fromStdString(typed.txtOrder));
  bool isRefused = !typed.isNumberGiven;
  if (!isRefused) txtOrder_Validate(isRefused);
  if (!isRefused) {
    showStage(Stage::NumberGiven);
    LoadObjects();
    steps_->settle();
  }
  txtVarNams->setText(QString::fromStdString(typed.txtVarNams));
}

}  // namespace tavimor
