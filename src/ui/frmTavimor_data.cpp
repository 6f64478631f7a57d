#include <QStringList>

#include "engine/capture_specs.h"
#include "model/add_values.h"
#include "model/var_values.h"
#include "runtime/number_text.h"
#include "runtime/run_time_error.h"
#include "runtime/val.h"
#include "ui/controls/input_box.h"
#include "ui/frmTavimor.h"

namespace tavimor {

namespace {

std::string part(const QStringList& parts, Long v) {
  if (v >= parts.size()) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
  return parts[v].toStdString();
}

bool isWithinGrid(const Dimension& model, const QStringList& parts) {
  for (Long v = 0; v <= model.LastVar; ++v)
    if (Val(part(parts, v)) > model.LastPoint[v]) return false;
  return true;
}

}  // namespace

void frmTavimor::cmdEditVars_Click(Long Index) {
  CaptureSpecs();
  blocks.at(Index).chkSpaced->setChecked(false);
  model_.V = Index;
  giveDefaultValues(Index);
  EditVarValues(Index);
}

void frmTavimor::cmdAddVars_Click(Long Index) {
  CaptureSpecs();
  blocks.at(Index).chkSpaced->setChecked(false);
  model_.V = Index;
  const QString name = QString::fromStdString(model_.VarName[Index]);
  model_.InText = InputBox(QStringLiteral("How many additional values for variable %1?").arg(name),
                           QStringLiteral("Add values for variable %1").arg(name));
  model_.AddCount[Index] = ValLong(model_.InText);
  if (model_.AddCount[Index] == 0) return;
  giveDefaultValues(Index);
  addValues(model_, Index);
  blocks.at(Index).txtPoints->setText(QString::fromStdString(numberText(model_.LastPoint[Index] + 1)));
  EditVarValues(Index);
}

void frmTavimor::giveDefaultValues(Long v) {
  if (!model_.ValuesGiven[v]) blocks.at(v).txtPoints->setEnabled(false);
  tavimor::giveDefaultValues(model_, v);
}

void frmTavimor::EditVarValues(Long v) { model_.V = v; }

void frmTavimor::cmdEditFun_Click() {
  const QStringList parts = askForStartingSet();
  if (parts.isEmpty()) return;
  RegenerateSpacedValues(model_, spacedMarks(specFields()));
  CaptureSpecs();
  for (Long v = 0; v <= model_.LastVar; ++v) {
    blocks.at(v).txtPoints->setEnabled(false);
    tavimor::giveDefaultValues(model_, v);
  }
  for (Long v = 0; v <= model_.LastVar; ++v) model_.StartIdx[v] = ValLong(part(parts, v));
}

QStringList frmTavimor::askForStartingSet() {
  QStringList parts;
  do {
    model_.InText = InputBox(QStringLiteral("Enter indices of starting set, separated by commas:"),
                             QStringLiteral("Review of function"));
    if (model_.InText.empty()) return {};
    parts = QString::fromStdString(model_.InText).split(QLatin1Char(','));
  } while (!isWithinGrid(model_, parts));
  return parts;
}

}  // namespace tavimor
