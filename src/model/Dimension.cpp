#include "model/Dimension.h"

#include "model/value_lists.h"

namespace tavimor {

namespace {
bool isVariable(Long v) { return v >= 0 && v < kMaxVariables; }
}  // namespace

void ClearVariables(Dimension& model) {
  for (Long v = 0; v < kMaxVariables; ++v) ClearVariable(model, v);
  model.StartIdx = {};
}

void GetVarX(Dimension& model, Long v, Long i) {
  if (isVariable(v)) model.VarX = valueOf(model, v, i);
}

void SetVarX(Dimension& model, Long v, Long i) {
  if (isVariable(v)) valueOf(model, v, i) = model.VarX;
}

void setTermIndices(Dimension& model, const PerVariable<Long>& index) {
  model.I0 = index[0];
  model.I1 = index[1];
  model.I2 = index[2];
  model.I3 = index[3];
}

}  // namespace tavimor
