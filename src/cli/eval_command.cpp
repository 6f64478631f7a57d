#include <algorithm>
#include <cmath>
#include <cstdio>
#include <functional>
#include <optional>

#include "cli/commands.h"
#include "cli/estimate_intervals.h"
#include "cli/fitting.h"
#include "cli/input_lines.h"
#include "cli/output.h"
#include "cli/point.h"
#include "cli/problem_changes.h"
#include "cli/problem_files.h"
#include "engine/polynomial.h"
#include "platform/terminal.h"
#include "runtime/bad_file.h"
#include "runtime/number_text.h"
#include "runtime/text.h"

namespace tavimor {

namespace {

std::string variableNames(const Problem& problem) {
  std::string names = problem.VarName[0];
  for (Long v = 1; v <= problem.LastVar; ++v) names += ", " + problem.VarName[v];
  return names;
}

std::string expectedPoint(const Problem& problem) {
  if (problem.LastVar == 0) return "one number, for " + variableNames(problem);
  return numberText(problem.LastVar + 1) + " numbers, one each for " + variableNames(problem);
}

std::string inQuotes(std::string_view text) { return '"' + excerpt(text) + '"'; }

bool isBlank(std::string_view line) { return line.find_first_not_of(" \t\r") == std::string_view::npos; }

// The words together are read as a line of standard input is.
PerVariable<double> pointFromArguments(const Problem& problem, const std::vector<std::string>& values) {
  std::string line = values[0];
  for (std::size_t n = 1; n < values.size(); ++n) line += ' ' + values[n];
  const auto point = parsePoint(line, problem.LastVar + 1);
  if (!point || std::any_of(values.begin(), values.end(), isBlank))
    throw UsageError("expected " + expectedPoint(problem) + ", found " + inQuotes(line));
  return *point;
}

// Whether the estimate is a finite number.
bool printEstimate(const OpenedProblem& opened, const PerVariable<double>& point) {
  const Problem& problem = opened.problem;
  const double estimate = valueAt(opened.fit.Coef, problem.TrigFlag, offsetsFrom(problem.Centre, point));
  printLine(numberText(estimate));
  return std::isfinite(estimate);
}

// Prints what is asked for at a point.
using PrintPoint = std::function<void(const PerVariable<double>& point)>;

void evaluateInput(const Problem& problem, const PrintPoint& print) {
  if (standardInputIsTerminal()) std::fprintf(stderr, "Type points, one a line: %s.\n", expectedPoint(problem).c_str());
  // The estimates of all lines that have come are seen before the program waits for the next one.
  InputLines lines(finishOutput);
  long number = 0;
  while (const auto line = lines.next()) {
    ++number;
    const bool isTooLong = line->size() >= InputLines::kLongestLine;
    if (!isTooLong && isBlank(*line)) continue;
    const auto point = isTooLong ? std::nullopt : parsePoint(*line, problem.LastVar + 1);
    if (!point) {
      finishOutput();
      std::string_view found = *line;
      if (found.ends_with('\r')) found.remove_suffix(1);
      throw BadFile("standard input", number, expectedPoint(problem),
                    isTooLong ? "a line that is too long" : inQuotes(found));
    }
    print(*point);
  }
}

}  // namespace

ExitCode evalCommand(const std::string& problem, const std::vector<std::string>& values,
                     const CommandOptions& options) {
  OpenedProblem opened = openShowingProgress(problem);
  const double level = intervalLevel(options);
  PerVariable<double> point{};
  if (!values.empty()) point = pointFromArguments(opened.problem, values);
  bool allFinite = true;
  PrintPoint print = [&](const PerVariable<double>& at) { allFinite = printEstimate(opened, at) && allFinite; };
  std::optional<EstimateIntervals> intervals;
  if (options.interval) {
    intervals.emplace(opened, level);
    if (!intervals->isKnown()) {
      complain(problem, "no intervals: " + intervals->reason());
      return ExitCode::NoFit;
    }
    print = [&](const PerVariable<double>& at) { printLine(intervals->lineAt(at)); };
  } else if (!provideFit(opened, problem)) {
    return ExitCode::NoFit;
  }
  if (values.empty())
    evaluateInput(opened.problem, print);
  else
    print(point);
  finishOutput();
  if (allFinite) return ExitCode::Success;
  complain(problem, "an estimate is not a finite number");
  return ExitCode::NoFit;
}

}  // namespace tavimor
