#include "engine/Compute.h"

#include <utility>

#include "engine/polynomial.h"
#include "model/capture_specs.h"

namespace tavimor {

namespace {

// Where the loops over the terms end: those over powers run down, those over waves go up in pairs of sine and cosine.
PerVariable<Long> indicesAfterEvaluation(const Problem& problem) {
  PerVariable<Long> index{};
  for (Long k = 0; k < kMaxVariables; ++k)
    index[k] = problem.TrigFlag[k] ? problem.Degree[k] + problem.Degree[k] % 2 : -1;
  return index;
}

}  // namespace

void beginFit(Dimension& model) {
  model.FitDone = false;
  model.ErrNumber = 0;
  RegenerateSpacedValues(model, model.EquallySpaced);
  model.FitGrid = Table4();  // its memory is wanted for the new one
}

void takeOutcome(Dimension& model, FitOutcome outcome, const LineSink& addItem) {
  model.ErrNumber = outcome.ErrNumber;
  if (outcome.end == FitEnd::Found || outcome.end == FitEnd::Singular)
    static_cast<Fit&>(model) = std::move(outcome.fit);
  if (outcome.end == FitEnd::Singular) addItem(kSingularMatrix);
}

void Compute(Dimension& model, const LineSink& addItem, const FitOptions& options) {
  beginFit(model);
  takeOutcome(model, fit(model, options, model), addItem);
}

void Evaluate(Dimension& model) {
  if (!model.FitDone) return;
  model.S3 = valueAt(model.Coef, model.TrigFlag, model.t);
  setTermIndices(model, indicesAfterEvaluation(model));
}

}  // namespace tavimor
