#include "cli/commands.h"

#include <cerrno>
#include <cstdio>
#include <iostream>

#include "cli/point.h"
#include "cli/progress_bar.h"
#include "engine/Compute.h"
#include "engine/capture_specs.h"
#include "engine/evaluate.h"
#include "engine/report_lines.h"
#include "engine/save_problem.h"
#include "model/open_problem.h"
#include "runtime/bad_file.h"
#include "runtime/number_text.h"
#include "runtime/run_time_error.h"

namespace tavimor {

namespace {

// What the window would hold after its Open command.
struct OpenProblem {
  explicit OpenProblem(const std::string& path) { openProblem(path, model, fields); }

  Dimension model;
  AllSpecFields fields;
};

void writeLine(std::FILE* stream, const std::string& line) {
  std::fwrite(line.data(), 1, line.size(), stream);
  std::fputc('\n', stream);
}

void printLine(const std::string& line) { writeLine(stdout, line); }
void complainLine(const std::string& line) { writeLine(stderr, line); }

void finishOutput() {
  if (std::fflush(stdout) != 0) throw fileError(errno, "standard output");
}

// What the window's Compute button does. A singular matrix is told to `tellSingular`, another failure to standard
// error.
ExitCode computeFit(OpenProblem& problem, const std::string& path, const LineSink& tellSingular) {
  CaptureSpecs(problem.model, problem.fields);
  ProgressBar bar;
  ComputeOptions options;
  options.progress = [&](double share) { bar.show(share); };
  bool isSingular = false;
  Compute(
      problem.model,
      [&](const std::string& item) {
        isSingular = true;
        tellSingular(item);
      },
      options);
  if (problem.model.FitDone) return ExitCode::Success;
  if (!isSingular) complainLine("tavimor-cli: " + path + ": " + reasonForNoFit(problem.model));
  return ExitCode::NoFit;
}

void printEstimate(Dimension& model, const PerVariable<double>& point) {
  for (Long k = 0; k <= model.LastVar; ++k) {
    model.x[k] = point[k];
    model.t[k] = model.x[k] - model.Centre[k];
  }
  Evaluate(model);
  printLine(numberText(model.S3));
}

PerVariable<double> pointFromArguments(const Dimension& model, const std::vector<std::string>& values) {
  const std::string expected = "expected " + numberText(model.LastVar + 1) + " number(s) for the point, found ";
  if (std::ssize(values) != model.LastVar + 1) throw UsageError(expected + std::to_string(values.size()));
  PerVariable<double> point{};
  for (Long v = 0; v <= model.LastVar; ++v) {
    const auto value = parsePoint(values[v], 1);
    if (!value) throw UsageError(expected + '"' + values[v] + '"');
    point[v] = (*value)[0];
  }
  return point;
}

void evaluateInput(Dimension& model) {
  std::ios::sync_with_stdio(false);
  std::string line;
  for (long number = 1; std::getline(std::cin, line); ++number) {
    const auto point = parsePoint(line, model.LastVar + 1);
    if (!point) {
      finishOutput();
      throw BadFile("standard input", number, numberText(model.LastVar + 1) + " number(s) for the point",
                    '"' + line.substr(0, line.find('\r')) + '"');
    }
    printEstimate(model, *point);
    // The estimates of all lines that have come are seen before the program waits for the next one.
    if (std::cin.rdbuf()->in_avail() <= 0) finishOutput();
  }
}

}  // namespace

ExitCode fitCommand(const std::string& problem, const std::string& output) {
  OpenProblem opened(problem);
  const ExitCode code = computeFit(opened, problem, printLine);
  if (code == ExitCode::Success) {
    ShowResults(opened.model, printLine);
    if (!output.empty()) SaveProblem(opened.model, opened.fields, output);
  }
  finishOutput();
  return code;
}

ExitCode showCommand(const std::string& problem) {
  OpenProblem opened(problem);
  for (Long k = 0; k <= opened.model.LastVar; ++k) variableLines(opened.model, k, printLine);
  if (opened.model.FitDone) ShowResults(opened.model, printLine);
  finishOutput();
  return ExitCode::Success;
}

ExitCode evalCommand(const std::string& problem, const std::vector<std::string>& values) {
  OpenProblem opened(problem);
  if (!opened.model.FitDone) {
    const ExitCode code = computeFit(opened, problem, complainLine);
    if (code != ExitCode::Success) return code;
  }
  if (values.empty())
    evaluateInput(opened.model);
  else
    printEstimate(opened.model, pointFromArguments(opened.model, values));
  finishOutput();
  return ExitCode::Success;
}

ExitCode reportCommand(const std::string& problem) {
  OpenProblem opened(problem);
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
  OpenProblem opened(problem);
  SaveProblem(opened.model, opened.fields, output);
  return ExitCode::Success;
}

}  // namespace tavimor
