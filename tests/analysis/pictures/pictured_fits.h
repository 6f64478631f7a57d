#pragma once

#include <cmath>

#include "analysis/pictures/shown_fit.h"
#include "engine/fit.h"
#include "model/spec_fields.h"
#include "runtime/number_text.h"
#include "support/problem.h"

namespace tavimor::test {

/// The fit of a problem, as pictures show it.
inline std::shared_ptr<const ShownFit> pictured(const Problem& problem) {
  ListedProblem listed{problem, {}, {}, ListedFrom::Nowhere};
  for (Long k = 0; k <= problem.LastVar; ++k) listed.fields[k].txtExpansion = numberText(problem.Centre[k]);
  FitOutcome outcome = fit(problem);
  if (outcome.end == FitEnd::Found) {
    listed.fit = std::move(outcome.fit);
    listed.from = ListedFrom::FitMadeNow;
  }
  return shownFit(analyse(std::move(listed)));
}

/// A function of so many variables that its polynomial does not reach.
inline Dimension roughProblem(int variables, int points = 9, Long degree = 2) {
  std::vector<Axis> axes;
  for (int k = 0; k < variables; ++k)
    axes.push_back({std::string(1, "xyzw"[k]), spaced(0.0, 2.0, points), degree, 1.0});
  Dimension model = problem(axes);
  tabulate(model, [](double x, double y, double z, double w) {
    return std::exp(x) * std::cos(y) + std::sin(3 * z) * (1 + w);
  });
  return model;
}

}  // namespace tavimor::test
