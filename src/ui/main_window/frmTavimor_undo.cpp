#include <algorithm>

#include "runtime/text.h"
#include "ui/data_windows/frmEvaluations.h"
#include "ui/data_windows/frmFun.h"
#include "ui/data_windows/frmVars.h"
#include "ui/main_window/frmTavimor.h"
#include "ui/main_window/step_recorder.h"

namespace tavimor {

namespace {

QString nameOf(const Change& change) { return QString::fromStdString(withEscapes(change.name)); }

// "Undo: degree of x"; a "&" of a name is no sign of a key.
void showItem(QAction& item, const QString& caption, const std::optional<Change>& change) {
  item.setEnabled(change.has_value());
  item.setText(change ? caption + QStringLiteral(": ") + nameOf(*change).replace(QLatin1Char('&'), QStringLiteral("&&"))
                      : caption);
}

void showLines(ListBox& list, const std::vector<std::string>& lines) {
  TextLines texts;
  for (const std::string& line : lines) texts.add(line);
  list.clear();
  list.addItems(texts);
}

}  // namespace

void frmTavimor::connectSteps() {
  connect(mnuUndo, &QAction::triggered, this, &frmTavimor::mnuUndo_Click);
  connect(mnuRedo, &QAction::triggered, this, &frmTavimor::mnuRedo_Click);
  connect(steps_.get(), &StepRecorder::Changed, this, &frmTavimor::showSteps);
  for (TextBox* field : {txtOrder, txtVarNams}) connect(field, &TextBox::Change, this, &frmTavimor::showSteps);
  showSteps();
}

bool frmTavimor::hasUnsavedChanges() const { return mnuSave->isEnabled() && !steps_->isSaved(); }

void frmTavimor::showSteps() {
  if (model_.LoadingFile) return;
  showItem(*mnuUndo, QStringLiteral("&Undo"), steps_->toUndo());
  showItem(*mnuRedo, QStringLiteral("&Redo"), steps_->toRedo());
  showFileName();
  emit ProblemChanged();
}

// What was done before a data window was opened is not seen there: it is undone in the main window.
void frmTavimor::mnuUndo_Click() {
  steps_->takeTyped();
  if (isDataWindowOpen() && steps_->position() == openedAt_)
    return tell(QStringLiteral("Nothing is changed in this window; more can be undone after Done"));
  travel(Direction::Back);
}

void frmTavimor::mnuRedo_Click() { travel(Direction::Forth); }

void frmTavimor::travel(Direction direction) {
  Shown shown;
  const bool isBack = direction == Direction::Back;
  const std::string fileBefore = model_.FileName;
  const std::optional<Exchanged> exchanged = isBack ? steps_->undo(shown) : steps_->redo(shown);
  if (!exchanged) return;
  if (cdbFile.FileName == fileBefore) cdbFile.FileName = model_.FileName;
  showExchanged(*exchanged, shown);
  tell((isBack ? QStringLiteral("Undone: %1") : QStringLiteral("Done again: %1")).arg(nameOf(exchanged->change)));
}

void frmTavimor::showExchanged(const Exchanged& exchanged, const Shown& shown) {
  if (exchanged.hasResults) showLines(*lstCoeff, shown.lines);
  if (exchanged.hasEntries) showEntries(shown.entries);
  if (model_.FitDone) enableWhatNeedsAFit();
  if (exchanged.hasResults) showWhatIsListed();
  steps_->settle();
  showPlace(exchanged.change.variable.value_or(model_.CurVar - 1));
  showInDataWindow(exchanged);
}

void frmTavimor::showEntries(const Entries& entries) {
  model_.LoadingFile = true;
  txtOrder->setText(QString::fromStdString(entries.txtOrder));
  txtVarNams->setText(QString::fromStdString(entries.txtVarNams));
  for (std::size_t k = 0; k < blocks.size(); ++k) {
    showFields(blocks[k], entries.fields[k]);
    blocks[k].txtExpansion->setText(QString::fromStdString(entries.fields[k].txtExpansion));
    blocks[k].txtPoints->setEnabled(!entries.isNumberFixed[k]);
    blocks[k].lblVar->setText(QString::fromStdString(model_.VarName[k]));
  }
  showStage(entries.stage);
  model_.LoadingFile = false;
}

void frmTavimor::showStage(Stage stage) {
  const bool hasNames = stage == Stage::NamesGiven;
  txtOrder->setEnabled(stage == Stage::Start);
  mnuOpen->setEnabled(stage == Stage::Start);
  txtVarNams->setEnabled(!hasNames);
  for (QAction* item : {mnuSave, mnuSaveAs, mnuPrint}) item->setEnabled(hasNames);
  mnuAbout->setVisible(hasNames);
  for (QWidget* control :
       {static_cast<QWidget*>(fraSpecs), static_cast<QWidget*>(cmdEditFun), static_cast<QWidget*>(cmdCompute)})
    control->setEnabled(hasNames);
  if (hasNames) return;
  cmdEvaluations->setEnabled(false);
  mnuExport->setEnabled(false);
  mnuCopyTable->setEnabled(false);
  if (evaluations_ != nullptr) evaluations_->unload();
}

// Brings the block of variable k on screen, or the field that is to be entered next. First the field with the focus is
// entered anew: what it shows now is what a change is measured against.
void frmTavimor::showPlace(Long k) {
  if (auto* field = qobject_cast<TextBox*>(focusWidget())) emit field->GotFocus();
  const bool hasNames = fraSpecs->isEnabledTo(this);
  for (std::size_t n = 1; n < blocks.size(); ++n)
    if (!hasNames || static_cast<Long>(n) > model_.LastVar) hideBlock(blocks[n]);
  if (!hasNames) {
    showFirstFields();
  } else if (isEnabled() && (k + 1 != model_.CurVar || lblBlock->text().isEmpty())) {
    showBlockNumber(std::min(k, model_.LastVar) + 1);
  }
}

// The names need not be acceptable to go back from them to the number.
void frmTavimor::showFirstFields() {
  model_.CurVar = 1;
  showBlock(blocks.front());
  labelBlock(0);
  lblBlock->clear();
  model_.LoadingFile = true;
  (txtOrder->isEnabledTo(this) ? txtOrder : txtVarNams)->setFocus();
  model_.LoadingFile = false;
}

bool frmTavimor::isDataWindowOpen() const {
  return (functionWindow_ != nullptr && functionWindow_->isOpen()) ||
         (valuesWindow_ != nullptr && valuesWindow_->isVisible());
}

void frmTavimor::connectSteps(frmVars& window) {
  connect(&window, &frmVars::ValueChanging, steps_.get(), &StepRecorder::valueChanging);
  connect(&window, &frmVars::ValueDeleting, steps_.get(), &StepRecorder::valueDeleting);
  connect(window.MSFlexGridVars, &FlexGrid::RowColChange, steps_.get(), &StepRecorder::endTyping);
  window.addActions({mnuUndo, mnuRedo});
}

void frmTavimor::connectSteps(frmFun& window) {
  connect(&window, &frmFun::FunctionValueChanging, steps_.get(), &StepRecorder::functionValueChanging);
  connect(&window, &frmFun::ValueChanging, steps_.get(), &StepRecorder::valueChanging);
  connect(&window, &frmFun::PointEntered, steps_.get(), &StepRecorder::endTyping);
  window.addActions({mnuUndo, mnuRedo});
  openedAt_ = steps_->position();
}

void frmTavimor::showInDataWindow(const Exchanged& exchanged) {
  const std::optional<ValuePlace>& place = exchanged.value;
  if (functionWindow_ != nullptr && functionWindow_->isOpen()) {
    PerVariable<Long> point = model_.StartIdx;
    if (place && place->variable)
      point[*place->variable] = place->index[*place->variable];
    else if (place)
      point = place->index;
    functionWindow_->showAnew(point);
  } else if (valuesWindow_ != nullptr && valuesWindow_->isVisible()) {
    const Long v = model_.V, row = valuesWindow_->MSFlexGridVars->Row();
    model_.Updating = true;
    PopulateGridVars(v);
    valuesWindow_->showAnew(place && place->variable == v ? place->index[v] : row);
    model_.Updating = false;
  }
}

}  // namespace tavimor
