#include "cli/fitting.h"

#include <utility>

#include "cli/output.h"
#include "cli/problem_changes.h"
#include "cli/progress_bar.h"
#include "model/capture_specs.h"
#include "report/no_fit_text.h"

namespace tavimor {

FitOutcome fitShowingProgress(OpenedProblem& opened) {
  CaptureSpecs(opened.problem, opened.fields);
  ProgressBar bar;
  FitOptions options;
  options.fittedValues = FittedValues::PassedThrough;  // no command reads them
  options.progress = [&](double share) { bar.show(share); };
  FitOutcome outcome = fit(opened.problem, options, opened.fit);
  opened.fit = std::exchange(outcome.fit, {});
  return outcome;
}

bool provideFit(OpenedProblem& opened, const std::string& path) {
  if (opened.fit.FitDone) return true;
  const FitOutcome outcome = fitShowingProgress(opened);
  if (outcome.end == FitEnd::Found) return true;
  complain(path, reasonForNoFit(opened.problem, outcome));
  return false;
}

ExitCode endOfResults(const std::string& problem, const Fit& fit) {
  if (!fit.FitDone || hasFiniteResults(fit)) return ExitCode::Success;
  complain(problem, "not all results are finite numbers");
  return ExitCode::NoFit;
}

SecondOpinion opinionShowingProgress(OpenedProblem& opened) {
  CaptureSpecs(opened.problem, opened.fields);
  ProgressBar bar;
  AnalysisOptions options;
  options.progress = [&](double share) { bar.show(share); };
  return secondOpinionOn(opened.problem, Reading::AsTyped, centresFromFields(opened.fields), options);
}

bool providePreciseFit(OpenedProblem& opened, const SecondOpinion& opinion, const std::string& path) {
  if (opinion.isExact())
    opened.fit = listedForm(opinion.precise);
  else
    complain(path, "no precise fit: " + reasonText(opinion.precise.finding, opened.problem));
  return opinion.isExact();
}

}  // namespace tavimor
