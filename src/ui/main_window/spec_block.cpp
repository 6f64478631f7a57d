#include "ui/main_window/spec_block.h"

#include "ui/controls/control_array.h"
#include "ui/controls/elided_label.h"
#include "ui/controls/make_control.h"

namespace tavimor {

namespace {

TextBox* makeField(const char* array, int k, const char* accessibleName, const char* text) {
  auto* box = new TextBox(elementName(array, k));
  box->setAccessibleName(QLatin1String(accessibleName));
  box->setText(QLatin1String(text));
  box->setEnterKey(EnterKey::MovesOn);
  return box;
}

QList<QWidget*> controlsOf(const SpecBlock& block) {
  return {block.txtUL,        block.txtLL,     block.lblVar,      block.txtTerms,  block.txtPoints,
          block.txtExpansion, block.chkSpaced, block.cmdEditVars, block.cmdAddVars};
}

}  // namespace

SpecBlock makeSpecBlock(int k) {
  SpecBlock block{};
  block.lblVar = makeControl<ElidedLabel>(elementName("lblVar", k), "");
  block.txtLL = makeField("txtLL", k, "Lower limit", "0");
  block.txtUL = makeField("txtUL", k, "Upper limit", "1");
  block.txtPoints = makeField("txtPoints", k, "Number of values", "2");
  block.txtTerms = makeField("txtTerms", k, "Desired degree", "1");
  block.txtExpansion = makeField("txtExpansion", k, "Center of expansion", "*");
  block.txtExpansion->setToolTip(QStringLiteral("Enter \"*\" for center of interval"));
  block.chkSpaced = makeControl<QCheckBox>(elementName("chkSpaced", k), "Equally spaced");
  block.chkSpaced->setChecked(true);
  block.chkSpaced->setFocusPolicy(Qt::StrongFocus);
  block.cmdAddVars = makeButton(elementName("cmdAddVars", k), "Add values");
  block.cmdEditVars = makeButton(elementName("cmdEditVars", k), "Edit values");
  return block;
}

void showBlock(const SpecBlock& block) {
  for (QWidget* control : controlsOf(block)) control->show();
}

void hideBlock(const SpecBlock& block) {
  for (QWidget* control : controlsOf(block)) control->hide();
}

SpecFields fieldsOf(const SpecBlock& block) {
  return {block.txtLL->text().toStdString(),        block.txtUL->text().toStdString(),
          block.txtTerms->text().toStdString(),     block.txtPoints->text().toStdString(),
          block.txtExpansion->text().toStdString(), block.chkSpaced->isChecked()};
}

void showFields(const SpecBlock& block, const SpecFields& fields) {
  block.txtLL->setText(QString::fromStdString(fields.txtLL));
  block.txtUL->setText(QString::fromStdString(fields.txtUL));
  block.txtTerms->setText(QString::fromStdString(fields.txtTerms));
  block.txtPoints->setText(QString::fromStdString(fields.txtPoints));
  block.chkSpaced->setChecked(fields.chkSpaced);
}

}  // namespace tavimor
