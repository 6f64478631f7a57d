#include <QHBoxLayout>
#include <initializer_list>

#include "ui/data_windows/frmFun_controls.h"

namespace tavimor {

namespace {

// The columns of the function call with four variables: f( i0 , i1 , i2 , i3 )= value, a gap, -, a gap, +. The rows of
// the variables have the columns from the last index on, their names standing in the room of all that is before it.
constexpr int kOpening = 0, kFirstIndex = 1, kFirstComma = 2;
constexpr int kLastIndex = 7, kEnd = 8, kValue = 9, kDec = 11, kInc = 13;

constexpr int indexColumn(int place) { return kFirstIndex + 2 * place; }
constexpr int commaColumn(int place) { return kFirstComma + 2 * place; }

// Without spacing between columns, which the toolkit would drop beside an empty one.
QGridLayout* makeGrid(int gap) {
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(0);
  grid->setColumnMinimumWidth(kDec - 1, gap);
  grid->setColumnMinimumWidth(kInc - 1, gap);
  grid->setColumnStretch(kValue, 1);
  return grid;
}

}  // namespace

void FunControls::layOut(QWidget& window) {
  const int gap = txtFun->fontMetrics().horizontalAdvance(QLatin1Char('0'));
  for (QLabel* label : {lblFun, Label5}) label->setContentsMargins(gap, 0, gap, 0);
  auto* whole = new QVBoxLayout(&window);
  call_ = makeGrid(gap);
  whole->addLayout(call_);
  whole->addWidget(Frame1);
  whole->addStretch(1);
  auto* exit = new QHBoxLayout;
  exit->addStretch(1);
  exit->addWidget(cmdExit);
  whole->addLayout(exit);
  whole->addWidget(stbStatus);
  layOutDesign();
  layOutRows(gap);
}

// Every column keeps its width, used or not, so that the call's end stands in one place for any number of variables.
void FunControls::layOutDesign() {
  const int opening = lblFun->sizeHint().width();
  call_->setColumnMinimumWidth(kOpening, opening);
  for (int k = 0; k < kMaxVariables; ++k) call_->setColumnMinimumWidth(indexColumn(k), txtFunIndex[k]->minimumWidth());
  for (int j = 0; j < kMaxVariables - 1; ++j) call_->setColumnMinimumWidth(commaColumn(j), opening);
  layOutFunctionCall(kMaxVariables - 1);
  call_->addWidget(Label5, 0, kEnd);
  call_->addWidget(txtFun, 0, kValue);
  call_->addWidget(cmdDecFunIndex, 0, kDec);
  call_->addWidget(cmdIncFunIndex, 0, kInc);
}

void FunControls::layOutRows(int gap) {
  QGridLayout* rows = makeGrid(gap);
  Frame1->setLayout(rows);
  const int names =
      lblFun->sizeHint().width() + (kMaxVariables - 1) * (txtFunIndex[0]->minimumWidth() + lblFun->sizeHint().width());
  rows->setColumnMinimumWidth(kLastIndex - 1, names);
  for (int k = 0; k < kMaxVariables; ++k) {
    lblVar[k]->setMaximumWidth(names);
    lblVar[k]->setContentsMargins(0, 0, gap, 0);
    lblClose[k]->setContentsMargins(gap, 0, gap, 0);
    rows->addWidget(lblVar[k], k, kLastIndex - 1, Qt::AlignRight | Qt::AlignVCenter);
    rows->addWidget(txtVarIndex[k], k, kLastIndex);
    rows->addWidget(lblClose[k], k, kEnd);
    rows->addWidget(txtVar[k], k, kValue);
    rows->addWidget(cmdDecIndex[k], k, kDec);
    rows->addWidget(cmdIncIndex[k], k, kInc);
  }
  const QMargins margins = Frame1->contentsMargins() + rows->contentsMargins();
  call_->setContentsMargins(margins.left(), 0, margins.right(), 0);
}

void FunControls::layOutFunctionCall(Long lastVar) {
  const int unused = kMaxVariables - 1 - lastVar;
  for (int k = 0; k <= lastVar; ++k) place(txtFunIndex[k], indexColumn(k + unused), {});
  for (int j = 0; j < kMaxVariables - 1; ++j) {
    if (j < lastVar) place(lblComma[j], commaColumn(j + unused), Qt::AlignCenter);
    lblComma[j]->setVisible(j < lastVar);
  }
  place(lblFun, unused == 0 ? kOpening : commaColumn(unused - 1), Qt::AlignRight | Qt::AlignVCenter);
}

void FunControls::place(QWidget* control, int column, Qt::Alignment alignment) {
  call_->removeWidget(control);
  call_->addWidget(control, 0, column, alignment);
}

void FunControls::showRow(Long k, const QString& name) const {
  lblVar[k]->setText(name + QLatin1Char('('));
  txtFunIndex[k]->setAccessibleName(QStringLiteral("Index of %1").arg(name));
  txtVarIndex[k]->setAccessibleName(QStringLiteral("Index of %1").arg(name));
  txtVar[k]->setAccessibleName(QStringLiteral("Value of %1").arg(name));
  for (QWidget* control : std::initializer_list<QWidget*>{txtFunIndex[k], lblVar[k], txtVarIndex[k], lblClose[k],
                                                          txtVar[k], cmdDecIndex[k], cmdIncIndex[k]})
    control->show();
}

}  // namespace tavimor
