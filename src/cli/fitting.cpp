#include "cli/fitting.h"

#include "cli/progress_bar.h"
#include "engine/Compute.h"
#include "model/capture_specs.h"

namespace tavimor {

std::optional<std::string> fitShowingProgress(OpenedProblem& problem) {
  CaptureSpecs(problem.model, problem.fields);
  ProgressBar bar;
  ComputeOptions options;
  options.progress = [&](double share) { bar.show(share); };
  std::optional<std::string> item;
  Compute(
      problem.model, [&](const std::string& line) { item = line; }, options);
  return item;
}

}  // namespace tavimor
