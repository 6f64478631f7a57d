#include <cstdio>

#include "cli/commands.h"
#include "cli/fitting.h"
#include "cli/input_lines.h"
#include "cli/output.h"
#include "cli/point.h"
#include "engine/Compute.h"
#include "engine/evaluate.h"
#include "platform/terminal.h"
#include "runtime/bad_file.h"
#include "runtime/number_text.h"
#include "runtime/text.h"

namespace tavimor {

namespace {

constexpr std::size_t kExcerptBytes = 40;

std::string variableNames(const Dimension& model) {
  std::string names = model.VarName[0];
  for (Long v = 1; v <= model.LastVar; ++v) names += ", " + model.VarName[v];
  return names;
}

std::string expectedPoint(const Dimension& model) {
  if (model.LastVar == 0) return "one number, for " + variableNames(model);
  return numberText(model.LastVar + 1) + " numbers, one each for " + variableNames(model);
}

// The text in quotes, fit for one line of a message.
std::string quoted(std::string_view text) {
  std::string excerpt = utf8FromBytes(trimmed(text.substr(0, kExcerptBytes)));
  for (char& c : excerpt)
    if (static_cast<unsigned char>(c) < ' ' || c == '\x7F') c = '?';
  return '"' + excerpt + '"';
}

PerVariable<double> pointFromArguments(const Dimension& model, const std::vector<std::string>& values) {
  const std::string expected = "expected " + expectedPoint(model) + ", found ";
  if (std::ssize(values) != model.LastVar + 1) throw UsageError(expected + std::to_string(values.size()));
  PerVariable<double> point{};
  for (Long v = 0; v <= model.LastVar; ++v) {
    const auto value = parsePoint(values[v], 1);
    if (!value) throw UsageError(expected + quoted(values[v]));
    point[v] = (*value)[0];
  }
  return point;
}

void printEstimate(Dimension& model, const PerVariable<double>& point) {
  for (Long k = 0; k <= model.LastVar; ++k) {
    model.x[k] = point[k];
    model.t[k] = model.x[k] - model.Centre[k];
  }
  Evaluate(model);
  printLine(numberText(model.S3));
}

void evaluateInput(Dimension& model) {
  if (standardInputIsTerminal()) std::fprintf(stderr, "Type points, one a line: %s.\n", expectedPoint(model).c_str());
  // The estimates of all lines that have come are seen before the program waits for the next one.
  InputLines lines(finishOutput);
  long number = 0;
  while (const auto line = lines.next()) {
    ++number;
    const auto point = parsePoint(*line, model.LastVar + 1);
    if (!point) {
      finishOutput();
      std::string_view found = *line;
      if (found.ends_with('\r')) found.remove_suffix(1);
      throw BadFile("standard input", number, expectedPoint(model), quoted(found));
    }
    printEstimate(model, *point);
  }
}

// False where there is no fit to evaluate, which the user has been told then.
bool provideFit(OpenedProblem& problem) {
  if (problem.model.FitDone) return true;
  const auto item = fitShowingProgress(problem);
  if (!problem.model.FitDone) complain(problem.path, item ? *item : reasonForNoFit(problem.model));
  return problem.model.FitDone;
}

}  // namespace

ExitCode evalCommand(const std::string& problem, const std::vector<std::string>& values) {
  OpenedProblem opened(problem);
  PerVariable<double> point{};
  if (!values.empty()) point = pointFromArguments(opened.model, values);
  if (!provideFit(opened)) return ExitCode::NoFit;
  if (values.empty())
    evaluateInput(opened.model);
  else
    printEstimate(opened.model, point);
  finishOutput();
  return ExitCode::Success;
}

}  // namespace tavimor
