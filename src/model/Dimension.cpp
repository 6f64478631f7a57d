#include "model/Dimension.h"

#include <cmath>

namespace tavimor {

Dimension::Dimension() : HalfPi(2.0 * std::atan(1.0)), Pi(4.0 * std::atan(1.0)), E(std::exp(1.0)) {}

void ClearVariables(Dimension& model) {
  model.VarName = {};
  model.LowerLimit = model.UpperLimit = model.Centre = model.Step = model.Period = {};
  model.Degree = model.LastPoint = model.AddCount = model.StartIdx = {};
  model.EquallySpaced = model.ValuesGiven = model.PeriodFlag = model.TrigFlag = {};
}

}  // namespace tavimor
