#pragma once

#include "model/Dimension.h"
#include "model/value_lists.h"
#include "plain_fit.h"

namespace plain {

/// The problem that a model holds, as the plain loops take it.
inline Problem problemOf(const tavimor::Dimension& model) {
  Problem problem;
  problem.lastVar = model.LastVar;
  for (int k = 0; k < tavimor::kMaxVariables; ++k) {
    problem.centre[k] = model.Centre[k];
    problem.degree[k] = model.Degree[k];
    problem.lastPoint[k] = model.LastPoint[k];
    problem.x[k] = tavimor::valueList(model, k);
  }
  problem.f.assign(model.F.data(), model.F.data() + model.F.size());
  return problem;
}

}  // namespace plain
