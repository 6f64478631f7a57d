#include <QClipboard>
#include <QGuiApplication>

#include "formats/formulas/export_formats.h"
#include "formats/formulas/make_formula.h"
#include "formats/formulas/residual_table.h"
#include "ui/controls/message_box.h"
#include "ui/export/export_dialog.h"
#include "ui/main_window/frmTavimor.h"

namespace tavimor {

// The results can be gone although there were some: a degree was changed.
bool frmTavimor::hasFormulaToExport() const {
  if (!model_.FitDone)
    showWarning(QStringLiteral("There is no fit to export: press Compute first."));
  else if (!hasFormula(model_))
    showWarning(QStringLiteral("A coefficient of the fit is no number: there is no formula to export."));
  return hasFormula(model_);
}

void frmTavimor::mnuExport_Click() {
  if (!hasFormulaToExport()) return;
  const std::string name = formulaNameOf(model_.FileName);
  ExportDialog(this, model_, model_, specFields(), name.empty() ? "fit" : name).exec();
}

void frmTavimor::mnuCopyTable_Click() {
  if (hasFormulaToExport())
    QGuiApplication::clipboard()->setText(QString::fromStdString(coefficientTable(model_, model_)));
}

}  // namespace tavimor
