#include "ui/main_window/frmTavimor.h"

#include <QCoreApplication>
#include <QDir>

#include "engine/Compute.h"
#include "platform/decimal_separator.h"
#include "platform/end_request.h"
#include "ui/controls/message_box.h"
#include "ui/main_window/frmAbout.h"
#include "ui/main_window/step_recorder.h"

namespace tavimor {

frmTavimor::frmTavimor(Dimension& model)
    : Form(QStringLiteral("frmTavimor")), MainControls(static_cast<QWidget&>(*this)), model_(model) {
  setWindowTitle(kTitle);
  steps_ = std::make_unique<StepRecorder>(static_cast<MainControls&>(*this), model_);
  connectCommands();
  connectAnalysis();
  connectTools();
  connectSteps();
  connectHeading();
  connectBlock(0);
  Form_Load();
}

void frmTavimor::Form_Load() {
  model_.WorkDir = QDir::currentPath().toStdString();
  doubleValuesColumn();
  setUpScript();
  showStage(Stage::Start);
  lblVarNam->setText(QStringLiteral("Enter the names of the independent variables, separated by commas:"));
  model_.CurVar = 1;
  model_.X0 = model_.X1 = model_.X2 = model_.X3 = {0.0};
  model_.Coef.redim({0, 0, 0, 0});
  model_.F.redim({0, 0, 0, 0});

  showFileName();
  keepUnsavedWork();
  steps_->settle();
  txtOrder->setFocus();

  setAcceptDrops(true);
  for (TextBox* field : {txtOrder, txtVarNams}) field->setAcceptDrops(false);  // a file is no text to type there
}

void frmTavimor::Form_Unload() {
  RestoreDecimalSeparator();
  keepForRestore(endIsRequested() ? SessionEnd::ToldToEnd : SessionEnd::Closed);
  keeper_.reset();
  const QVector<Form*> forms = openForms();
  for (Form* form : forms) form->unload();
  QCoreApplication::quit();
}

// Until the blocks can take the focus, a click anywhere beside the controls leaves the field. Not by a focus policy: a
// click on the menus would then be one, and be swallowed where the field refuses to be left.
void frmTavimor::mousePressEvent(QMouseEvent* event) {
  Form::mousePressEvent(event);
  if (!fraSpecs->isEnabled()) setFocus();
}

void frmTavimor::connectCommands() {
  connect(mnuOpen, &QAction::triggered, this, &frmTavimor::mnuOpen_Click);
  connect(mnuImport, &QAction::triggered, this, &frmTavimor::mnuImport_Click);
  connect(mnuPaste, &QAction::triggered, this, &frmTavimor::mnuPaste_Click);
  connect(mnuSave, &QAction::triggered, this, &frmTavimor::mnuSave_Click);
  connect(mnuSaveAs, &QAction::triggered, this, &frmTavimor::mnuSaveAs_Click);
  connect(mnuPrint, &QAction::triggered, this, &frmTavimor::mnuPrint_Click);
  connect(mnuRestore, &QAction::triggered, this, &frmTavimor::mnuRestore_Click);
  connect(mnuExport, &QAction::triggered, this, &frmTavimor::mnuExport_Click);
  connect(mnuCopyTable, &QAction::triggered, this, &frmTavimor::mnuCopyTable_Click);
  connect(mnuAnalysis, &QAction::triggered, this, &frmTavimor::mnuAnalysis_Click);
  connect(mnuHelp, &QAction::triggered, this, &frmTavimor::mnuHelp_Click);
  connect(mnuAbout, &QAction::triggered, this, &frmTavimor::mnuAbout_Click);
  connect(cmdNextVar, &QPushButton::clicked, this, &frmTavimor::cmdNextVar_Click);
  connect(cmdPrevVar, &QPushButton::clicked, this, &frmTavimor::cmdPrevVar_Click);
  connect(cmdEditFun, &QPushButton::clicked, this, &frmTavimor::cmdEditFun_Click);
  connect(cmdCompute, &QPushButton::clicked, this, &frmTavimor::cmdCompute_Click);
  connect(cmdEvaluations, &QPushButton::clicked, this, &frmTavimor::cmdEvaluations_Click);
}

void frmTavimor::mnuAbout_Click() { ShowAbout(); }

void frmTavimor::GetVarX(Long v, Long i) { tavimor::GetVarX(model_, v, i); }

void frmTavimor::SetVarX(Long v, Long i) { tavimor::SetVarX(model_, v, i); }

void frmTavimor::EditLimit(Long k) {
  for (Long i = 0; i <= model_.LastVar; ++i) hideBlock(blocks.at(i));
  showBlock(blocks.at(k));
  labelBlock(k);
  showBlockOfBlocks(k);
  blocks[k].lblVar->setText(QString::fromStdString(model_.VarName[k]));
  blocks[k].txtLL->setFocus();
}

void frmTavimor::cmdNextVar_Click() { showBlockNumber(model_.CurVar == model_.LastVar + 1 ? 1 : model_.CurVar + 1); }

void frmTavimor::cmdPrevVar_Click() { showBlockNumber(model_.CurVar == 1 ? model_.LastVar + 1 : model_.CurVar - 1); }

void frmTavimor::showBlockNumber(Long number) {
  model_.CurVar = number;
  EditLimit(number - 1);
}

void frmTavimor::Compute() {
  beginFit(model_);
  LongWork work(*wrkDisplay, [this] { return isToEnd(); });
  FitOptions options;
  options.isCalledOff = [&work] { return work.isCalledOff() || endIsRequested(); };
  options.progress = [&work](double share) { work.tell(share); };
  FitOutcome outcome;
  work.run([&] { outcome = fit(model_, options, model_); });
  const auto addItem = [this](const std::string& line) { lstCoeff->addItem(line); };
  takeOutcome(model_, std::move(outcome), addItem);
}

// Asked to, or closed while work was going on.
bool frmTavimor::isToEnd() const { return isEnding() || endIsRequested(); }

void frmTavimor::Evaluate() { tavimor::Evaluate(model_); }

}  // namespace tavimor
