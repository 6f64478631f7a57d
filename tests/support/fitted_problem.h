#pragma once

#include "analysis/analysis.h"
#include "engine/fit.h"
#include "model/Dimension.h"
#include "runtime/number_text.h"

namespace tavimor::test {

/// The problem of a model with a fit made now, and fields that show it.
inline ListedProblem fitted(const Dimension& model) {
  ListedProblem listed{model, {}, fit(model).fit, ListedFrom::FitMadeNow};
  SetDisplayedSpecs(listed.problem, listed.fields);
  for (Long k = 0; k <= model.LastVar; ++k) listed.fields[k].txtExpansion = numberText(model.Centre[k]);
  return listed;
}

}  // namespace tavimor::test
