#include "model/Dimension.h"

#include "model/value_lists.h"

namespace tavimor {

namespace {
bool isVariable(Long v) { return v >= 0 && v < kMaxVariables; }
}  // namespace

void ClearVariables(Dimension& model) {
  model.VarName = {};
  model.LowerLimit = model.UpperLimit = model.Centre = model.Step = model.Period = {};
  model.Degree = model.LastPoint = model.AddCount = model.StartIdx = {};
  model.EquallySpaced = model.ValuesGiven = model.PeriodFlag = model.TrigFlag = {};
}

void GetVarX(Dimension& model, Long v, Long i) {
  if (isVariable(v)) model.VarX = valueOf(model, v, i);
}

void SetVarX(Dimension& model, Long v, Long i) {
  if (isVariable(v)) valueOf(model, v, i) = model.VarX;
}

}  // namespace tavimor
