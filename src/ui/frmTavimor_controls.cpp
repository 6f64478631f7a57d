#include "ui/frmTavimor_controls.h"

#include "ui/controls/fonts.h"

namespace tavimor {

namespace {

template <class Control>
Control* make(const char* name, const char* caption) {
  auto* control = new Control(QLatin1String(caption));
  control->setObjectName(QLatin1String(name));
  control->setFont(sansSerifFont());
  return control;
}

QPushButton* makeButton(const char* name, const char* caption) {
  auto* button = make<QPushButton>(name, caption);
  button->setFocusPolicy(Qt::StrongFocus);
  return button;
}

TextBox* makeBox(const char* name, const char* accessibleName, QLabel* label) {
  auto* box = new TextBox(QLatin1String(name));
  box->setFont(verdanaFont());
  box->setEnterKey(EnterKey::MovesOn);
  box->setAccessibleName(QLatin1String(accessibleName));
  label->setBuddy(box);
  return box;
}

}  // namespace

void MainControls::makeControls() {
  lblOrder = make<QLabel>("lblOrder", "Enter # of independent variables:");
  txtOrder = makeBox("txtOrder", "Number of independent variables", lblOrder);
  lblVarNam = make<QLabel>("lblVarNam", "");
  txtVarNams = makeBox("txtVarNams", "Names of the independent variables, separated by commas", lblVarNam);

  fraSpecs = make<QGroupBox>("fraSpecs", "Specs for each variable");
  lblVariable = make<QLabel>("lblVariable", "Variable:");
  lblLL = make<QLabel>("lblLL", "Lower limit:");
  lblUL = make<QLabel>("lblUL", "Upper limit:");
  lblPoints = make<QLabel>("lblPoints", "# of values:");
  lblTerms = make<QLabel>("lblTerms", "Desired degree:");
  lblExpansion = make<QLabel>("lblExpansion", "Center of expansion:");
  cmdPrevVar = makeButton("cmdPrevVar", "Previous");
  cmdNextVar = makeButton("cmdNextVar", "Next");

  cmdEditFun = makeButton("cmdEditFun", "Edit function");
  cmdCompute = makeButton("cmdCompute", "Compute");
  cmdCompute->setToolTip(QStringLiteral("Compute coefficients"));
  cmdEvaluations = makeButton("cmdEvaluations", "Evaluations");
  lstCoeff = new ListBox(QStringLiteral("lstCoeff"));
  lstCoeff->setToolTip(QStringLiteral("Coefficients"));
  lstCoeff->setAccessibleName(QStringLiteral("Coefficients"));
}

void MainControls::labelBlock(std::size_t k) const {
  const SpecBlock& block = blocks.at(k);
  lblLL->setBuddy(block.txtLL);
  lblUL->setBuddy(block.txtUL);
  lblPoints->setBuddy(block.txtPoints);
  lblTerms->setBuddy(block.txtTerms);
  lblExpansion->setBuddy(block.txtExpansion);
}

}  // namespace tavimor
