#include "cli/commands.h"
#include "cli/fit_check.h"
#include "cli/fitting.h"
#include "cli/output.h"
#include "cli/problem_changes.h"
#include "cli/problem_files.h"
#include "report/listing.h"
#include "report/no_fit_text.h"

namespace tavimor {

namespace {

void printOutcome(const OpenedProblem& opened, const FitOutcome& outcome, const std::string& path) {
  if (outcome.end == FitEnd::Singular)
    printLine(kSingularMatrix);
  else if (outcome.end != FitEnd::Found)
    complain(path, reasonForNoFit(opened.problem, outcome));
  else
    ShowResults(opened.problem, opened.fit, printLine);
  finishOutput();
}

// A degree that is too high has been told.
void checkFit(OpenedProblem& opened, const FitOutcome& outcome, const std::string& path) {
  if (outcome.end != FitEnd::Found && outcome.end != FitEnd::Singular) return;
  if (const auto warning = warningOf(opinionShowingProgress(opened), opened, path)) complain(path, *warning);
}

ExitCode fitPrecisely(OpenedProblem& opened, const std::string& path, const std::string& output) {
  if (!providePreciseFit(opened, opinionShowingProgress(opened), path)) return ExitCode::NoFit;
  printLine("PRECISE: the exact least-squares solution, not that of the fixed order of arithmetic.");
  ShowResults(opened.problem, opened.fit, printLine);
  finishOutput();
  if (!output.empty()) saveShowingProgress(opened.problem, opened.fit, output);
  return ExitCode::Success;
}

}  // namespace

ExitCode fitCommand(const std::string& problem, const std::string& output, const CommandOptions& options) {
  OpenedProblem opened = openShowingProgress(problem);
  applyChanges(options, opened);
  if (options.precise) return fitPrecisely(opened, problem, output);
  const FitOutcome outcome = fitShowingProgress(opened);
  printOutcome(opened, outcome, problem);
  if (endOfResults(problem, opened.fit) == ExitCode::NoFit) return ExitCode::NoFit;
  if (outcome.end == FitEnd::Found && !output.empty()) saveShowingProgress(opened.problem, opened.fit, output);
  if (!options.noCheck) checkFit(opened, outcome, problem);
  return outcome.end == FitEnd::Found ? ExitCode::Success : ExitCode::NoFit;
}

}  // namespace tavimor
