#include "ui/data_windows/frmEvaluations_controls.h"

#include <QGridLayout>
#include <QHBoxLayout>

#include "ui/controls/control_array.h"
#include "ui/controls/elided_label.h"
#include "ui/controls/fonts.h"
#include "ui/controls/make_control.h"

namespace tavimor {

namespace {

constexpr int kWidestNumber = 22;  // characters of "-1.23456789012345E-300"

}  // namespace

EvaluationsControls::EvaluationsControls(QWidget& window) {
  makeControls();
  layOut(window);
}

void EvaluationsControls::makeControls() {
  fraEval = makeControl<QGroupBox>(QStringLiteral("fraEval"), "Evaluation Point");
  fraEval->setToolTip(QStringLiteral("Enter values for each variable"));
  for (int k = 0; k < kRows; ++k) {
    lblVarx[k] = makeControl<ElidedLabel>(elementName("lblVarx", k), "x=");
    lblVarx[k]->setFont(verdanaFont());
    lblVarx[k]->hide();
    txtVarx[k] = new TextBox(elementName("txtVarx", k));
    txtVarx[k]->setFont(verdanaFont());
    txtVarx[k]->setEnterKey(EnterKey::MovesOn);
    txtVarx[k]->hide();
  }
  cmdCompute = makeButton(QStringLiteral("cmdCompute"), "Compute");
  cmdCompute->setToolTip(QStringLiteral("Evaluate approximation and function"));
  lblAppr = makeControl<QLabel>(QStringLiteral("lblAppr"), "Estimate=");
  lblApprox = makeControl<QLabel>(QStringLiteral("lblApprox"), "");
  lblApprox->setFont(verdanaFont());
  lblApprox->setToolTip(QStringLiteral("Derivative"));
  lblApprox->setAccessibleName(QStringLiteral("Estimate"));
  lblApprox->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  lblApprox->setFocusPolicy(Qt::StrongFocus);  // so that the keyboard can copy the estimate
}

void EvaluationsControls::layOut(QWidget& window) const {
  auto* point = new QGridLayout(fraEval);
  for (int k = 0; k < kRows; ++k) {
    txtVarx[k]->setMinimumWidth(widthOf(*txtVarx[k], kWidestNumber));
    point->addWidget(lblVarx[k], k, 0, Qt::AlignRight | Qt::AlignVCenter);
    point->addWidget(txtVarx[k], k, 1);
  }
  point->setColumnStretch(1, 1);
  point->setRowStretch(kRows, 1);

  auto* result = new QHBoxLayout;
  lblApprox->setMinimumWidth(widthOf(*lblApprox, kWidestNumber));
  result->addWidget(cmdCompute);
  result->addWidget(lblAppr);
  result->addWidget(lblApprox, 1);
  auto* whole = new QVBoxLayout(&window);
  whole->addWidget(fraEval, 1);
  whole->addLayout(result);
}

}  // namespace tavimor
