#include "engine/Compute.h"

#include <new>

#include "engine/capture_specs.h"
#include "engine/fit_on_grid.h"
#include "engine/right_hand_side.h"
#include "engine/solver.h"
#include "engine/statistics.h"
#include "runtime/number_text.h"
#include "runtime/run_time_error.h"

namespace tavimor {

namespace {

// The first axis, declared or not, on which the grid has no room for the coefficients, or -1.
Long axisWithoutRoom(const Dimension& model) {
  for (Long k = 0; k < kMaxVariables; ++k)
    if (model.Degree[k] > model.LastPoint[k]) return k;
  return -1;
}

Solution solveVariable(const Dimension& model, Long k, Table4& coef, const ComputeOptions& options) {
  Gram gram = normalMatrix(model, k, options);
  return solveAlong(k, gram, coef);
}

Solution solveAll(Dimension& model, const ComputeOptions& options) {
  for (Long k = 0; k <= model.LastVar; ++k)
    if (solveVariable(model, k, model.Coef, options) == Solution::Singular) return Solution::Singular;
  return Solution::Found;
}

// Whether one of the systems is singular, found on a single line: no larger table is needed to tell.
Solution solveForSingularityOnly(const Dimension& model, const ComputeOptions& options) {
  for (Long k = 0; k <= model.LastVar; ++k) {
    PerVariable<Long> line{};
    line[k] = model.Degree[k];
    Table4 coef;
    coef.redim(line);
    if (solveVariable(model, k, coef, options) == Solution::Singular) return Solution::Singular;
  }
  return Solution::Found;
}

Solution solve(Dimension& model, const ComputeOptions& options) {
  // With too high a degree the fitted values find no room and the fit ends with a subscript error, unless a system
  // is singular before that; the coefficients are not needed for either.
  if (axisWithoutRoom(model) >= 0) {
    if (solveForSingularityOnly(model, options) == Solution::Singular) return Solution::Singular;
    throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
  }
  accumulateRightHandSide(model, options);
  return solveAll(model, options);
}

void fit(Dimension& model, const LineSink& addItem, const ComputeOptions& options) {
  if (solve(model, options) == Solution::Singular) {
    addItem("YIELDS SINGULAR MATRIX.");
    return;
  }
  const double sumGiven = sumOfGiven(model.F);
  FitOnGrid(model, options);
  fitStatistics(model, sumGiven);
  model.FitDone = true;
}

}  // namespace

void Compute(Dimension& model, const LineSink& addItem, const ComputeOptions& options) {
  model.FitDone = false;
  model.ErrNumber = 0;
  RegenerateSpacedValues(model, model.EquallySpaced);
  try {
    fit(model, addItem, options);
  } catch (const RunTimeError& error) {
    model.ErrNumber = static_cast<Long>(error.number());
  } catch (const std::bad_alloc&) {
    model.ErrNumber = static_cast<Long>(ErrorNumber::OutOfMemory);
  }
}

std::string reasonForNoFit(const Dimension& model) {
  if (const Long k = axisWithoutRoom(model); k >= 0)
    return "no fit: the degree of variable \"" + model.VarName[k] + "\" (" + numberText(model.Degree[k]) +
           ") is not below its number of values (" + numberText(addLongs(model.LastPoint[k], 1)) + ")";
  return std::string("no fit: ") + description(static_cast<ErrorNumber>(model.ErrNumber));
}

}  // namespace tavimor
