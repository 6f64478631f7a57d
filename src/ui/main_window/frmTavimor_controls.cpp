#include "ui/main_window/frmTavimor_controls.h"

#include "ui/controls/fonts.h"
#include "ui/controls/make_control.h"

namespace tavimor {

namespace {

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
  lblOrder = makeControl<QLabel>(QStringLiteral("lblOrder"), "Enter # of independent variables:");
  txtOrder = makeBox("txtOrder", "Number of independent variables", lblOrder);
  lblVarNam = makeControl<QLabel>(QStringLiteral("lblVarNam"), "");
  txtVarNams = makeBox("txtVarNams", "Names of the independent variables, separated by commas", lblVarNam);

  fraSpecs = makeControl<QGroupBox>(QStringLiteral("fraSpecs"), "Specs for each variable");
  lblVariable = makeControl<QLabel>(QStringLiteral("lblVariable"), "Variable:");
  lblLL = makeControl<QLabel>(QStringLiteral("lblLL"), "Lower limit:");
  lblUL = makeControl<QLabel>(QStringLiteral("lblUL"), "Upper limit:");
  lblPoints = makeControl<QLabel>(QStringLiteral("lblPoints"), "# of values:");
  lblTerms = makeControl<QLabel>(QStringLiteral("lblTerms"), "Desired degree:");
  lblExpansion = makeControl<QLabel>(QStringLiteral("lblExpansion"), "Center of expansion:");
  cmdPrevVar = makeButton(QStringLiteral("cmdPrevVar"), "Previous");
  cmdNextVar = makeButton(QStringLiteral("cmdNextVar"), "Next");

  cmdEditFun = makeButton(QStringLiteral("cmdEditFun"), "Edit function");
  cmdCompute = makeButton(QStringLiteral("cmdCompute"), "Compute");
  cmdCompute->setToolTip(QStringLiteral("Compute coefficients"));
  cmdEvaluations = makeButton(QStringLiteral("cmdEvaluations"), "Evaluations");
  lstCoeff = new ListBox(QStringLiteral("lstCoeff"));
  lstCoeff->setToolTip(QStringLiteral("Coefficients"));
  lstCoeff->setAccessibleName(QStringLiteral("Coefficients"));
  mnuCopyTable = new QAction(QStringLiteral("Copy as table"), lstCoeff);
  mnuCopyTable->setObjectName(QStringLiteral("mnuCopyTable"));
  lstCoeff->addAction(mnuCopyTable);
}

void MainControls::makeStatusLine() {
  stbStatus = new StatusLine;
  cmdVerdict = makeButton(QStringLiteral("cmdVerdict"), "");
  cmdVerdict->setFlat(true);
  cmdVerdict->setFocusPolicy(Qt::NoFocus);  // as a menu: no field is left for it
  cmdVerdict->hide();
  lblFileName = makeControl<ElidedLabel>(QStringLiteral("lblFileName"), "");
  lblBlock = makeControl<QLabel>(QStringLiteral("lblBlock"), "");
  wrkDisplay = new WorkDisplay;
  stbStatus->addPermanentWidget(wrkDisplay);
  stbStatus->addPermanentWidget(cmdVerdict);
  stbStatus->addPermanentWidget(lblFileName);
  stbStatus->addPermanentWidget(lblBlock);
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
