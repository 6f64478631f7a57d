#include "model/value_lists.h"
#include "runtime/number_text.h"
#include "ui/analysis/frmAnalysis.h"
#include "ui/data_windows/frmFun.h"
#include "ui/data_windows/frmVars.h"
#include "ui/main_window/frmTavimor.h"
#include "ui/main_window/step_recorder.h"

namespace tavimor {

namespace {

template <class Number>
QString text(Number number) {
  return QString::fromStdString(numberText(number));
}

}  // namespace

// Its pages refer to a part of this window.
frmTavimor::~frmTavimor() {
  delete analysisWindow_;
  delete valuesWindow_;
}

frmVars& frmTavimor::valuesWindow() {
  if (valuesWindow_ == nullptr || !valuesWindow_->isOpen()) {
    valuesWindow_ = new frmVars(model_);
    connect(valuesWindow_, &frmVars::ValueDeleted, this, &frmTavimor::numberOfValuesChanged);
    connect(valuesWindow_, &frmVars::Finished, this, &Form::enable);
    connectSteps(*valuesWindow_);
  }
  return *valuesWindow_;
}

// Once, at the start-up: a window that is made anew after it was closed has the designed width.
void frmTavimor::doubleValuesColumn() {
  FlexGrid& grid = *valuesWindow().MSFlexGridVars;
  grid.setColWidth(1, 2 * grid.ColWidth(1));
}

void frmTavimor::EditVarValues(Long v, Long first) {
  model_.V = v;
  disable();
  PopulateGridVars(v);
  openedAt_ = steps_->position();
  valuesWindow().open(*this, first);
}

void frmTavimor::PopulateGridVars(Long v) {
  const QString name = QString::fromStdString(model_.VarName[v]);
  FlexGrid& grid = *valuesWindow().MSFlexGridVars;
  grid.setRows(model_.LastPoint[v] + 1);
  grid.setCols(2);
  grid.setColAlignment(0, CellAlignment::RightCentre);
  grid.setColAlignment(1, CellAlignment::CentreCentre);
  for (Long i = 0; i <= model_.LastPoint[v]; ++i) {
    grid.setTextMatrix(i, 0, QStringLiteral("%1(%2)=").arg(name, text(i)));
    grid.setTextMatrix(i, 1, text(valueOf(model_, v, i)));
  }
  valuesWindow().setWindowTitle(QStringLiteral("Enter/edit values of variable: ") + name);
}

// The results belong to another grid than the one that variable v has now.
void frmTavimor::numberOfValuesChanged(Long v) {
  blocks.at(v).txtPoints->setText(text(model_.LastPoint[v] + 1));
  steps_->settle();
  ClearResults();
}

}  // namespace tavimor
