#include "cli/fitting.h"

#include <utility>

#include "cli/progress_bar.h"
#include "model/capture_specs.h"

namespace tavimor {

FitOutcome fitShowingProgress(OpenedProblem& opened) {
  CaptureSpecs(opened.problem, opened.fields);
  ProgressBar bar;
  FitOptions options;
  options.progress = [&](double share) { bar.show(share); };
  FitOutcome outcome = fit(opened.problem, options, opened.fit);
  opened.fit = std::exchange(outcome.fit, {});
  return outcome;
}

}  // namespace tavimor
