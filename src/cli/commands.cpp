#include "cli/commands.h"

#include "cli/fitting.h"
#include "cli/output.h"
#include "cli/problem_files.h"
#include "model/capture_specs.h"
#include "report/listing.h"
#include "report/report_lines.h"
#include "runtime/failure.h"

namespace tavimor {

ExitCode showCommand(const std::string& problem) {
  const OpenedProblem opened = openShowingProgress(problem);
  for (Long k = 0; k <= opened.problem.LastVar; ++k) variableLines(opened.problem, k, printLine);
  if (opened.fit.FitDone) {
    ShowResults(opened.problem, opened.fit, printLine);
  } else {
    printLine("");
    printLine("NO FIT IS STORED.");
  }
  finishOutput();
  return endOfResults(problem, opened.fit);
}

ExitCode reportCommand(const std::string& problem) {
  OpenedProblem opened = openShowingProgress(problem);
  CaptureSpecs(opened.problem, opened.fields);
  try {
    reportLines(opened.problem, opened.fit, printLine);
  } catch (const Failure&) {
    finishOutput();
    throw;
  }
  finishOutput();
  return endOfResults(problem, opened.fit);
}

ExitCode copyCommand(const std::string& problem, const std::string& output) {
  OpenedProblem opened = openShowingProgress(problem);
  CaptureSpecs(opened.problem, opened.fields);
  saveShowingProgress(opened.problem, opened.fit, output);
  return ExitCode::Success;
}

}  // namespace tavimor
