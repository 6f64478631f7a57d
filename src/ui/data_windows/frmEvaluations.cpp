#include "ui/data_windows/frmEvaluations.h"

#include "engine/Compute.h"
#include "engine/polynomial.h"
#include "runtime/number_text.h"
#include "runtime/run_time_error.h"
#include "runtime/val.h"

namespace tavimor {

frmEvaluations::frmEvaluations(Dimension& model, ScriptHost& script)
    : Form(QStringLiteral("frmEvaluations")),
      EvaluationsControls(static_cast<QWidget&>(*this)),
      model_(model),
      script_(script) {
  setWindowTitle(QStringLiteral("Evaluations"));
  connect(cmdCompute, &QPushButton::clicked, this, &frmEvaluations::cmdCompute_Click);
  for (int k = 0; k < kRows; ++k) connect(txtVarx[k], &TextBox::GotFocus, this, [this, k] { txtVarx_GotFocus(k); });
  Form_Load();
}

void frmEvaluations::Form_Load() {
  for (Long k = 0; k <= model_.LastVar; ++k) {
    const QString name = QString::fromStdString(model_.VarName[k]);
    txtVarx[k]->setText(QString::fromStdString(numberText(model_.x[k])));
    txtVarx[k]->setAccessibleName(name);
    lblVarx[k]->setText(name + QLatin1Char('='));
  }
  for (Long k = 0; k <= model_.LastVar; ++k) {
    lblVarx[k]->show();
    txtVarx[k]->show();
  }
}

// The engine has told the user what it refused; all that is left of the click is dropped.
void frmEvaluations::cmdCompute_Click() {
  try {
    evaluatePoint();
  } catch (const RunTimeError& error) {
    if (error.number() != ErrorNumber::ScriptReported) throw;
  }
}

void frmEvaluations::evaluatePoint() {
  for (Long k = 0; k <= model_.LastVar; ++k) {
    model_.x[k] = Val(txtVarx[k]->text().toStdString());
    model_.t[k] = offsetFrom(model_.Centre[k], model_.x[k]);
    script_.ExecuteStatement(model_.VarName[k] + "=" + numberText(model_.x[k]));
  }
  Evaluate(model_);
  lblApprox->setText(QString::fromStdString(numberText(model_.S3)));
}

void frmEvaluations::txtVarx_GotFocus(int k) { txtVarx[k]->selectAll(); }

}  // namespace tavimor
