#include <nlohmann/json.hpp>

#include "analysis/degree_search.h"
#include "analysis/figure_texts.h"
#include "analysis/right_digits.h"
#include "analysis/second_opinion.h"
#include "cli/commands.h"
#include "cli/output.h"
#include "cli/problem_changes.h"
#include "cli/problem_files.h"
#include "cli/progress_bar.h"
#include "cli/text_table.h"
#include "model/capture_specs.h"

namespace tavimor {

namespace {

// As high as the values allow where nothing is said.
PerVariable<Long> degreesToSearch(const Problem& problem, const CommandOptions& options) {
  PerVariable<Long> largest = largestDegrees(problem);
  if (!options.most.empty()) {
    Long k = 0;
    for (const Long said : wholeNumbers("--max", options.most, problem)) largest[k++] = said;
  }
  if (const std::size_t combinations = combinationsUpTo(largest); combinations > kMostCombinations)
    throw UsageError("--max: " + std::to_string(combinations) + " combinations of degrees are more than " +
                     std::to_string(kMostCombinations));
  return largest;
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
  const PerVariable<Long> largest = degreesToSearch(opened.problem, options);
  const Reading reading = options.asStored ? Reading::AsStored : Reading::AsTyped;
  ProgressBar bar;
  AnalysisOptions how;
  how.progress = [&](double share) { bar.show(share); };
  const DegreeSearcher searcher(problemData(opened.problem, reading, centresFromFields(opened.fields)), largest, how);
  const DegreeSearch found = searcher.search();
  if (found.finding.verdict != Verdict::Exact) {
    opened.problem.Degree = largest;  // the degrees that the reason tells of
    complain(problem, "no map of degrees: " + reasonText(found.finding, opened.problem));
    return ExitCode::NoFit;
  }
  if (options.json)
    printLine(mapJson(opened.problem, found.combinations, options));
  else
    printMap(opened.problem, found.combinations, searcher.pressOfBest(found), options);
  finishOutput();
  return ExitCode::Success;
}

}  // namespace tavimor
