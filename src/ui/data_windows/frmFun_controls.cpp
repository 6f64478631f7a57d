#include "ui/data_windows/frmFun_controls.h"

#include <initializer_list>

#include "ui/controls/control_array.h"
#include "ui/controls/elided_label.h"
#include "ui/controls/make_control.h"

namespace tavimor {

namespace {

// Users know the tip by these words, "show" included.
constexpr const char* kAdd = "Add the number of units show on the right";
constexpr const char* kSubtract = "Subtract the number of units show on the right";

constexpr int kIndexDigits = 5;
constexpr int kValueDigits = 22;  // "-1.23456789012345E-300"

QLabel* makeLabel(const QString& name, const char* caption) {
  auto* label = makeControl<QLabel>(name, caption);
  label->setFont(verdanaFont());
  label->setTextFormat(Qt::PlainText);
  return label;
}

TextBox* makeBox(const QString& name, int digits) {
  auto* box = new TextBox(name);
  box->setFont(verdanaFont());
  box->setEnterKey(EnterKey::MovesOn);
  box->setMinimumWidth(widthOf(*box, digits));
  return box;
}

TextBox* makeIndexBox(const QString& name) {
  TextBox* box = makeBox(name, kIndexDigits);
  box->setMaximumWidth(box->minimumWidth());
  return box;
}

QPushButton* makeStep(const QString& name, const char* caption, const char* toolTip) {
  QPushButton* button = makeButton(name, caption);
  button->setToolTip(QLatin1String(toolTip));
  button->setAccessibleName(QLatin1String(toolTip));
  button->setFixedWidth(2 * button->sizeHint().height());
  return button;
}

}  // namespace

FunControls::FunControls(QWidget& window) {
  makeFunctionCall();
  Frame1 = makeControl<QGroupBox>(QStringLiteral("Frame1"), "");
  for (int k = 0; k < kMaxVariables; ++k) makeRow(k);
  cmdExit = makeButton(QStringLiteral("cmdExit"), "Done");
  stbStatus = new StatusLine;
  layOut(window);
  orderTabs();
}

void FunControls::makeFunctionCall() {
  lblFun = makeLabel(QStringLiteral("lblFun"), "f(");
  for (int k = 0; k < kMaxVariables; ++k) {
    txtFunIndex[k] = makeIndexBox(elementName("txtFunIndex", k));
    txtFunIndex[k]->hide();
  }
  for (int j = 0; j < kMaxVariables - 1; ++j) lblComma[j] = makeLabel(elementName("lblComma", j), ",");
  Label5 = makeLabel(QStringLiteral("Label5"), ")=");
  txtFun = makeBox(QStringLiteral("txtFun"), kValueDigits);
  txtFun->setAccessibleName(QStringLiteral("Value of the function"));
  cmdIncFunIndex = makeStep(QStringLiteral("cmdIncFunIndex"), "+", kAdd);
  cmdDecFunIndex = makeStep(QStringLiteral("cmdDecFunIndex"), "-", kSubtract);
}

void FunControls::makeRow(int k) {
  lblVar[k] = makeControl<ElidedLabel>(elementName("lblVar", k), "x(");
  lblVar[k]->setFont(verdanaFont());
  txtVarIndex[k] = makeIndexBox(elementName("txtVarIndex", k));
  lblClose[k] = makeLabel(elementName("lblClose", k), ")=");
  txtVar[k] = makeBox(elementName("txtVar", k), kValueDigits);
  cmdIncIndex[k] = makeStep(elementName("cmdIncIndex", k), "+", kAdd);
  cmdDecIndex[k] = makeStep(elementName("cmdDecIndex", k), "-", kSubtract);
  for (QWidget* control : std::initializer_list<QWidget*>{lblVar[k], txtVarIndex[k], lblClose[k], txtVar[k],
                                                          cmdIncIndex[k], cmdDecIndex[k]})
    control->hide();
}

void FunControls::orderTabs() const {
  QList<QWidget*> order(txtFunIndex.begin(), txtFunIndex.end());
  order << txtFun << cmdDecFunIndex << cmdIncFunIndex;
  for (int k = 0; k < kMaxVariables; ++k) order << txtVarIndex[k] << txtVar[k] << cmdDecIndex[k] << cmdIncIndex[k];
  order << cmdExit;
  for (qsizetype n = 1; n < order.size(); ++n) QWidget::setTabOrder(order[n - 1], order[n]);
}

}  // namespace tavimor
