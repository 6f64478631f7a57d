#include "engine/Compute.h"

#include <future>
#include <new>
#include <utility>
#include <vector>

#include "engine/fit_on_grid.h"
#include "engine/right_hand_side.h"
#include "engine/solver.h"
#include "engine/statistics.h"
#include "model/capture_specs.h"
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

// The normal matrices need nothing of the right-hand side. Those of long axes are made beside it, in threads of their
// own, the others when they are asked for.
std::vector<std::future<Gram>> normalMatrices(const Dimension& model, const ComputeOptions& options) {
  constexpr double workWorthAThread = 1e7;
  std::vector<std::future<Gram>> matrices;
  for (Long k = 0; k <= model.LastVar; ++k) {
    const double terms = model.Degree[k] + 1.0;
    const bool pays = options.threads != 1 && model.LastPoint[k] * terms * terms > workWorthAThread;
    matrices.push_back(std::async(pays ? std::launch::async : std::launch::deferred,
                                  [&model, k, &options] { return normalMatrix(model, k, options); }));
  }
  return matrices;
}

Solution solveAll(Dimension& model, std::vector<std::future<Gram>> matrices) {
  for (Long k = 0; k <= model.LastVar; ++k) {
    Gram gram = matrices[k].get();
    if (solveAlong(k, gram, model.Coef) == Solution::Singular) return Solution::Singular;
  }
  return Solution::Found;
}

// Whether one of the systems is singular, found on a single line: no larger table is needed to tell.
Solution solveForSingularityOnly(const Dimension& model, const ComputeOptions& options) {
  for (Long k = 0; k <= model.LastVar; ++k) {
    PerVariable<Long> line{};
    line[k] = model.Degree[k];
    Table4 coef;
    coef.redim(line);
    Gram gram = normalMatrix(model, k, options);
    if (solveAlong(k, gram, coef) == Solution::Singular) return Solution::Singular;
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
  std::vector<std::future<Gram>> matrices = normalMatrices(model, options);
  accumulateRightHandSide(model, options);
  return solveAll(model, std::move(matrices));
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
