#include "cli/commands.h"

#include "cli/fitting.h"
#include "cli/output.h"
#include "engine/Compute.h"
#include "formats/save_problem.h"
#include "model/capture_specs.h"
#include "report/report_lines.h"
#include "runtime/run_time_error.h"

namespace tavimor {

ExitCode fitCommand(const std::string& problem, const std::string& output) {
  OpenedProblem opened(problem);
  const auto item = fitShowingProgress(opened);
  if (!opened.model.FitDone) {
    if (item)
      printLine(*item);
    else
      complain(problem, reasonForNoFit(opened.model));
    finishOutput();
    return ExitCode::NoFit;
  }
  ShowResults(opened.model, printLine);
  finishOutput();
  if (!output.empty()) SaveProblem(opened.model, opened.fields, output);
  return ExitCode::Success;
}

ExitCode showCommand(const std::string& problem) {
  OpenedProblem opened(problem);
  for (Long k = 0; k <= opened.model.LastVar; ++k) variableLines(opened.model, k, printLine);
  if (opened.model.FitDone) ShowResults(opened.model, printLine);
  finishOutput();
  return ExitCode::Success;
}

ExitCode reportCommand(const std::string& problem) {
  OpenedProblem opened(problem);
  CaptureSpecs(opened.model, opened.fields);
  try {
    reportLines(opened.model, printLine);
  } catch (const RunTimeError&) {
    finishOutput();
    throw;
  }
  finishOutput();
  return ExitCode::Success;
}

ExitCode copyCommand(const std::string& problem, const std::string& output) {
  OpenedProblem opened(problem);
  SaveProblem(opened.model, opened.fields, output);
  return ExitCode::Success;
}

}  // namespace tavimor
