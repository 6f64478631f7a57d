#include <algorithm>
#include <cmath>
#include <nlohmann/json.hpp>

#include "analysis/degree_map.h"
#include "analysis/right_digits.h"
#include "analysis/second_opinion.h"
#include "cli/commands.h"
#include "cli/output.h"
#include "cli/problem_changes.h"
#include "cli/problem_files.h"
#include "cli/progress_bar.h"
#include "cli/text_table.h"
#include "model/capture_specs.h"
#include "runtime/number_text.h"

namespace tavimor {

namespace {

constexpr std::size_t kBestWithPress = 10;
constexpr std::size_t kMostCombinations = 20000;

// As high as the values allow where nothing is said.
void setLargestDegrees(OpenedProblem& opened, const CommandOptions& options) {
  Problem& problem = opened.problem;
  const std::vector<Long> given =
      options.most.empty() ? std::vector<Long>() : wholeNumbers("--max", options.most, problem);
  const ProblemData data = problemData(problem);
  std::size_t combinations = 1;
  for (Long k = 0; k <= problem.LastVar; ++k) {
    const bool said = k < std::ssize(given);
    const Long wished = said ? given[k] : problem.Degree[k] + 2;
    const auto different = differentValues(data.axis[k], static_cast<std::size_t>(wished) + 1);
    problem.Degree[k] = said ? wished : std::min(wished, static_cast<Long>(different) - 1);
    combinations *= static_cast<std::size_t>(problem.Degree[k]) + 1;
  }
  if (combinations > kMostCombinations)
    throw UsageError("--max: " + std::to_string(combinations) + " combinations of degrees are more than " +
                     std::to_string(kMostCombinations));
}

// PRESS needs a pass over the data: it is told for the best only, by BIC.
std::vector<std::optional<double>> pressOfBest(const ProblemData& data, const Decomposition& decomposition,
                                               const std::vector<DegreeCombination>& all) {
  std::vector<std::optional<double>> press(all.size());
  std::vector<std::size_t> order;
  for (std::size_t n = 0; n < all.size(); ++n)
    if (all[n].statistics.bic) order.push_back(n);
  std::sort(order.begin(), order.end(),
            [&](std::size_t a, std::size_t b) { return *all[a].statistics.bic < *all[b].statistics.bic; });
  order.resize(std::min(order.size(), kBestWithPress));
  for (const std::size_t n : order) {
    ProblemData lower = data;
    PerVariable<std::size_t> terms{};
    for (int k = 0; k < kMaxVariables; ++k)
      lower.axis[k].terms = terms[k] = static_cast<std::size_t>(all[n].degrees[k]) + 1;
    press[n] = gridResiduals(lower, withTerms(decomposition, terms)).press;
  }
  return press;
}

std::string degreesText(const Problem& problem, const PerVariable<Long>& degrees) {
  std::string text;
  for (Long k = 0; k <= problem.LastVar; ++k) text += (k > 0 ? "," : "") + numberText(degrees[k]);
  return text;
}

std::string shortText(const std::optional<double>& value) {
  if (!value) return "-";
  char text[32];
  std::snprintf(text, sizeof text, "%.6G", *value);
  return text;
}

void printMap(const Problem& problem, const std::vector<DegreeCombination>& all,
              const std::vector<std::optional<double>>& press, const CommandOptions& options) {
  TextTable table({"DEGREES", "P", "RSS", "s", "ADJUSTED R^2", "GCV", "BIC", "PRESS", "DIGITS", ""});
  for (std::size_t n = 0; n < all.size(); ++n) {
    const DegreeCombination& one = all[n];
    if (one.beaten && !one.recommended && !options.all) continue;
    const FitStatistics& figures = one.statistics;
    table.add({degreesText(problem, one.degrees), std::to_string(figures.terms),
               figures.residualsAreZero ? "0" : shortText(figures.rss), shortText(figures.s),
               shortText(figures.adjustedRSquared), shortText(figures.gcv), shortText(figures.bic), shortText(press[n]),
               std::to_string(shownDigits(one.predictedDigits)), one.recommended ? "recommended" : ""});
  }
  table.print(printLine);
}

using Json = nlohmann::ordered_json;

Json orNull(const std::optional<double>& value) { return value ? Json(*value) : Json(nullptr); }

std::string mapJson(const Problem& problem, const std::vector<DegreeCombination>& all, const CommandOptions& options) {
  Json list = Json::array();
  for (const DegreeCombination& one : all) {
    if (one.beaten && !one.recommended && !options.all) continue;
    Json degrees = Json::array();
    for (Long k = 0; k <= problem.LastVar; ++k) degrees.push_back(one.degrees[k]);
    list.push_back({{"degrees", degrees},
                    {"terms", one.statistics.terms},
                    {"rss", one.statistics.rss},
                    {"s", orNull(one.statistics.s)},
                    {"adjusted_r_squared", orNull(one.statistics.adjustedRSquared)},
                    {"gcv", orNull(one.statistics.gcv)},
                    {"bic", orNull(one.statistics.bic)},
                    {"predicted_digits", shownDigits(one.predictedDigits)},
                    {"recommended", one.recommended}});
  }
  return Json{{"combinations", list}}.dump(2);
}

}  // namespace

ExitCode degreesCommand(const std::string& problem, const CommandOptions& options) {
  OpenedProblem opened = openShowingProgress(problem);
  CaptureSpecs(opened.problem, opened.fields);
  setLargestDegrees(opened, options);
  const Reading reading = options.asStored ? Reading::AsStored : Reading::AsTyped;
  const ProblemData data = problemData(opened.problem, reading, centresFromFields(opened.fields));
  ProgressBar bar;
  AnalysisOptions how;
  how.progress = [&](double share) { bar.show(share); };
  const Decomposition decomposition = decompose(data, how);
  if (decomposition.finding.verdict != Verdict::Exact) {
    complain(problem, "no map of degrees: " + reasonText(decomposition.finding, opened.problem));
    return ExitCode::NoFit;
  }
  const std::vector<DegreeCombination> all = degreeMap(data, decomposition, centresOf(data));
  if (options.json)
    printLine(mapJson(opened.problem, all, options));
  else
    printMap(opened.problem, all, pressOfBest(data, decomposition, all), options);
  finishOutput();
  return ExitCode::Success;
}

}  // namespace tavimor
