#include "cli/analysis.h"

#include "cli/fitting.h"
#include "cli/problem_changes.h"
#include "cli/problem_files.h"
#include "model/capture_specs.h"

namespace tavimor {

ListedProblem listedProblem(const std::string& path, const CommandOptions& options) {
  OpenedProblem opened = openShowingProgress(path);
  ListedFrom from = ListedFrom::Files;
  if (!opened.fit.FitDone || asksForAnotherFit(options)) {
    applyChanges(options, opened);
    from = fitShowingProgress(opened).end == FitEnd::Found ? ListedFrom::FitMadeNow : ListedFrom::Nowhere;
  } else {
    CaptureSpecs(opened.problem, opened.fields);
  }
  return {std::move(opened.problem), opened.fields, std::move(opened.fit), from};
}

}  // namespace tavimor
