#include <QStringList>

#include "runtime/val.h"
#include "ui/main_window/frmTavimor.h"
#include "ui/main_window/step_recorder.h"

namespace tavimor {

namespace {

std::string textOf(const QLineEdit* box) { return box->text().toStdString(); }

QString namesHint(Long count) {
  return count == 1 ? QStringLiteral("One name is needed here, without a comma")
                    : QStringLiteral("%1 names separated by commas are needed here, none of them empty").arg(count);
}

Long lastPointIn(const QLineEdit* box) { return toLong(Val(textOf(box)) - 1.0); }

}  // namespace

void frmTavimor::connectHeading() {
  connect(txtOrder, &TextBox::GotFocus, txtOrder, &QLineEdit::selectAll);
  connect(txtOrder, &TextBox::Validate, this, &frmTavimor::txtOrder_Validate);
  connect(txtOrder, &TextBox::LostFocus, this, &frmTavimor::txtOrder_LostFocus);
  connect(txtVarNams, &TextBox::GotFocus, txtVarNams, &QLineEdit::selectAll);
  connect(txtVarNams, &TextBox::Validate, this, &frmTavimor::txtVarNams_Validate);
  connect(txtVarNams, &TextBox::LostFocus, this, &frmTavimor::txtVarNams_LostFocus);
  for (TextBox* box : {txtOrder, txtVarNams}) connectHints(*box);
}

void frmTavimor::connectBlock(Long k) {
  const SpecBlock& block = blocks.at(k);
  for (TextBox* box : {block.txtLL, block.txtUL, block.txtExpansion, block.txtTerms, block.txtPoints})
    connect(box, &TextBox::GotFocus, box, &QLineEdit::selectAll);
  for (TextBox* box : {block.txtLL, block.txtUL})
    connect(box, &TextBox::Validate, this, [this, box](bool& cancel) { limit_Validate(*box, cancel); });

  connect(block.txtTerms, &TextBox::GotFocus, this, [this, k] { txtTerms_GotFocus(k); });
  connect(block.txtTerms, &TextBox::Validate, this, [this, k](bool& cancel) { txtTerms_Validate(k, cancel); });
  connect(block.txtTerms, &TextBox::LostFocus, this, [this, k] { txtTerms_LostFocus(k); });
  connect(block.txtPoints, &TextBox::GotFocus, this, [this, k] { txtPoints_GotFocus(k); });
  connect(block.txtPoints, &TextBox::Validate, this, [this, k](bool& cancel) { txtPoints_Validate(k, cancel); });
  connect(block.txtPoints, &TextBox::LostFocus, this, [this, k] { txtPoints_LostFocus(k); });

  for (TextBox* box : {block.txtLL, block.txtUL, block.txtExpansion, block.txtTerms, block.txtPoints}) {
    connectHints(*box);
    connect(box, &TextBox::LostFocus, steps_.get(), &StepRecorder::takeTyped);
    connect(box, &TextBox::Change, this, &frmTavimor::showSteps);
  }
  connect(block.chkSpaced, &QCheckBox::clicked, steps_.get(), &StepRecorder::takeTyped);
  connect(block.cmdAddVars, &QPushButton::clicked, this, [this, k] { cmdAddVars_Click(k); });
  connect(block.cmdEditVars, &QPushButton::clicked, this, [this, k] { cmdEditVars_Click(k); });
}

// The hint goes as soon as the field is changed or left.
void frmTavimor::connectHints(TextBox& field) {
  connect(&field, &TextBox::Change, stbStatus, &StatusLine::clearHint);
  connect(&field, &TextBox::LostFocus, stbStatus, &StatusLine::clearHint);
}

void frmTavimor::limit_Validate(const TextBox& field, bool& cancel) {
  cancel = !IsNumeric(textOf(&field));
  if (cancel) stbStatus->showHint(QStringLiteral("A number with a decimal point is needed here"));
}

void frmTavimor::txtOrder_Validate(bool& cancel) {
  const double number = Val(textOf(txtOrder));
  // The last test: 0.4 is above 0 and yet rounds to no variable at all.
  cancel = !(number > 0 && number <= kMaxVariables) || toLong(number - 1) < 0;
  if (cancel) return stbStatus->showHint(QStringLiteral("1, 2, 3 or 4 variables are possible"));
  steps_->takeTyped();
  model_.LastVar = toLong(number - 1);
  ClearVariables(model_);
}

void frmTavimor::txtOrder_LostFocus() {
  if (model_.LoadingFile) return;
  txtOrder->setEnabled(false);
  mnuOpen->setEnabled(false);
  if (!txtVarNams->isEnabled()) return;
  LoadObjects();
  steps_->settle();
  txtVarNams->setFocus();
}

void frmTavimor::txtVarNams_Validate(bool& cancel) {
  if (model_.LoadingFile) return;
  const QStringList names = txtVarNams->text().split(QLatin1Char(','));
  cancel = names.size() != model_.LastVar + 1 || names.contains(QString());
  if (cancel) return stbStatus->showHint(namesHint(model_.LastVar + 1));
  steps_->takeTyped();
  for (Long k = 0; k <= model_.LastVar; ++k) {
    model_.VarName[k] = names[k].toStdString();
    blocks.at(k).lblVar->setText(names[k]);
  }
}

void frmTavimor::txtVarNams_LostFocus() {
  if (model_.LoadingFile) return;
  // The number, too: where it was never entered, it is 1. A click on the names of a window that is not active passes it
  // over, and the blocks would not follow another number now.
  showStage(Stage::NamesGiven);
  steps_->settle();
  EditLimit(model_.CurVar - 1);
}

void frmTavimor::txtTerms_GotFocus(Long k) { model_.OldDegree = ValLong(textOf(blocks.at(k).txtTerms)); }

void frmTavimor::txtTerms_Validate(Long k, bool& cancel) {
  const double degree = Val(textOf(blocks.at(k).txtTerms));
  cancel = !(degree >= 0 && degree < Val(textOf(blocks.at(k).txtPoints)));
  if (cancel)
    stbStatus->showHint(QStringLiteral("A degree of 0 or more and below the number of values, %1, is needed here")
                            .arg(blocks[k].txtPoints->text()));
}

void frmTavimor::txtTerms_LostFocus(Long k) {
  if (model_.LoadingFile) return;
  steps_->takeTyped();
  model_.Degree[k] = ValLong(textOf(blocks.at(k).txtTerms));
  if (model_.Degree[k] == model_.OldDegree) return;
  ClearResults();
  model_.Coef.redim(model_.Degree);
}

void frmTavimor::txtPoints_GotFocus(Long k) { model_.OldLastPoint = lastPointIn(blocks.at(k).txtPoints); }

void frmTavimor::txtPoints_Validate(Long k, bool& cancel) {
  const std::string text = textOf(blocks.at(k).txtPoints);
  cancel = !IsNumeric(text) || Val(text) < 2;
  if (cancel) stbStatus->showHint(QStringLiteral("A number of 2 or more values is needed here"));
}

void frmTavimor::txtPoints_LostFocus(Long k) {
  if (model_.LoadingFile) return;
  steps_->takeTyped();
  model_.LastPoint[k] = lastPointIn(blocks.at(k).txtPoints);
  if (model_.LastPoint[k] == model_.OldLastPoint) return;
  ClearResults();
  steps_->replaceFunction(model_.LastPoint);
}

}  // namespace tavimor
