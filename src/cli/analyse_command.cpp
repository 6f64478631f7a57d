#include <algorithm>
#include <cstdio>

#include "analysis/right_digits.h"
#include "analysis/statistic_texts.h"
#include "cli/analysis.h"
#include "cli/commands.h"
#include "cli/output.h"
#include "cli/problem_changes.h"
#include "cli/progress_bar.h"
#include "cli/text_table.h"
#include "model/grid_indices.h"
#include "model/value_lists.h"
#include "report/term_text.h"
#include "runtime/number_text.h"

namespace tavimor {

namespace {

std::string textOf(const std::optional<double>& value) { return value ? numberText(*value) : "-"; }

std::string digitsText(const std::optional<double>& digits) {
  return digits ? std::to_string(shownDigits(*digits)) : "-";
}

// Figures beside a coefficient are looked at and not calculated with: fewer digits make the table fit a screen.
std::string shortText(const std::optional<double>& value) {
  if (!value) return "-";
  char text[32];
  std::snprintf(text, sizeof text, "%.6G", *value);
  return text;
}

// The digits that the bound leaves, 15 at most.
std::string preciseText(const Bounded& solution) {
  const double digits = rightDigits(solution.rounded() + solution.bound, solution);
  char text[32];
  std::snprintf(text, sizeof text, "%.*G", std::max(1, shownDigits(digits)), solution.rounded());
  return digits >= kMostDigits ? numberText(solution.rounded()) : text;
}

std::string verdictText(const Analysis& analysis) {
  const Finding& finding = analysis.opinion.precise.finding;
  const std::string reason = reasonText(finding, analysis.problem());
  switch (finding.verdict) {
    case Verdict::Exact: return "The exact least-squares solution is known, in the digits shown as precise.";
    case Verdict::NotCertified: return "The exact solution cannot be certified: " + reason + ".";
    case Verdict::NotDetermined: return "The data determine no fit: " + reason + ".";
    case Verdict::NotFinite: return "There is no solution: " + reason + ".";
  }
  return "";
}

std::string listedText(ListedFrom from) {
  switch (from) {
    case ListedFrom::Nowhere: return "The fit has no listing: its system is singular in the arithmetic of the fit.";
    case ListedFrom::Files: return "Listed are the results that the problem was saved with.";
    case ListedFrom::FilesOfOtherData:
      return "Listed are the results that the problem was saved with: they are NOT the fit of the data beside them.";
    case ListedFrom::FitMadeNow: return "Listed are the results of a fit made now.";
  }
  return "";
}

void printCoefficients(const Analysis& analysis) {
  const PreciseFit& precise = analysis.opinion.precise;
  const std::string percent = numberText(100 * analysis.level) + " %";
  TextTable table({"TERM", "LISTED", "DIGITS", "PRECISE", "STD ERROR", "t", "p", percent + " FROM", "TO"});
  std::size_t n = 0;
  forEachIndex(analysis.problem().Degree, [&](const PerVariable<Long>& power) {
    const PreciseCoefficient& one = precise.coefficients[n];
    const CoefficientInference& inference = analysis.inference[n];
    std::string listed = "-", digits = "-";
    if (analysis.listed.hasListed()) {
      listed = numberText(analysis.listed.fit.Coef.data()[n]);
      digits = digitsText(analysis.digits.coefficients[n]);
    }
    if (one.isNoise()) digits = "noise";
    table.add({plainTermText(analysis.problem(), power), listed, digits, preciseText(one.solution),
               shortText(inference.standardError), shortText(inference.t), shortText(inference.p),
               shortText(inference.low), shortText(inference.high)});
    ++n;
  });
  printLine("");
  table.print(printLine);
}

std::string pointText(const Analysis& analysis) {
  std::string text;
  const std::vector<double> point = gridPoint(analysis.problem(), analysis.residuals.largestAt);
  for (std::size_t k = 0; k < point.size(); ++k)
    text += (k > 0 ? ", " : "") + analysis.problem().VarName[k] + " = " + numberText(point[k]);
  return text;
}

std::string figure(const Analysis& analysis, const std::string& key) {
  const FitStatistics& figures = analysis.statistics;
  if (key == "rss") return figures.residualsAreZero ? "0 as far as can be told" : numberText(figures.rss);
  if (key == "s") return textOf(figures.s);
  if (key == "r_squared") return textOf(figures.rSquared);
  if (key == "adjusted_r_squared") return textOf(figures.adjustedRSquared);
  if (key == "f") return textOf(figures.f);
  if (key == "f_p") return textOf(figures.fP);
  if (key == "press") return textOf(analysis.residuals.press);
  if (key == "predicted_r_squared") return textOf(analysis.predictedRSquared);
  if (key == "aicc") return textOf(figures.aicc);
  if (key == "bic") return textOf(figures.bic);
  if (key == "rms") return textOf(figures.rms);
  if (figures.residualsAreZero) return "0 as far as can be told";
  return numberText(analysis.residuals.largest) + " at " + pointText(analysis);
}

void printStatistics(const Analysis& analysis) {
  printLine("");
  printLine("STATISTICS of the precise solution, N = " + std::to_string(analysis.statistics.points) +
            " points, P = " + std::to_string(analysis.statistics.terms) + " coefficients:");
  for (const StatisticText& text : statisticTexts())
    printLine(text.name + std::string(" = ") + figure(analysis, text.key) + "   [" + text.definition + "]");
  if (analysis.statistics.noFreedom)
    printLine("There are as many coefficients as points: no degree of freedom is left.");
  if (!analysis.residuals.press)
    printLine("The leverage of a point is 1: the fit must go through it; PRESS is undefined.");
}

void printListedDigits(const Analysis& analysis) {
  const ListedDigits& digits = analysis.digits;
  printLine("");
  printLine("RIGHT DIGITS of the listed figures:");
  printLine("correlation coefficient " + digitsText(digits.correlation) + ", standard error of estimate " +
            digitsText(digits.standardError) + ", sum of squared residuals " + digitsText(digits.residualSum) +
            ", average of given " + digitsText(digits.averageGiven) + ", of estimated " +
            digitsText(digits.averageEstimated));
  printLine("worst coefficient that is more than noise: " + digitsText(digits.worst));
}

void printRemedy(const TriedRemedy& remedy) {
  if (remedy.remedy == Remedy::None) return;
  printLine("");
  if (remedy.remedy == Remedy::CentreInTheMiddle)
    printLine("REMEDY: with the centre in the middle of each interval (--centre, *) a fit has " +
              digitsText(remedy.digitsThen) + " right digits instead of " + digitsText(remedy.digitsNow) + ".");
  else
    printLine("REMEDY: take the precise coefficients, of which all digits are right (tavimor-cli fit --precise).");
}

void printAnalysis(const Analysis& analysis) {
  printLine(verdictText(analysis));
  const Verdict verdict = analysis.opinion.precise.finding.verdict;
  if (verdict == Verdict::Exact || verdict == Verdict::NotCertified) printLine(listedText(analysis.listed.from));
  if (!analysis.opinion.isExact()) return;
  printCoefficients(analysis);
  printStatistics(analysis);
  if (!analysis.listed.hasListed()) return;
  printListedDigits(analysis);
  printRemedy(analysis.remedy);
}

}  // namespace

ExitCode analyseCommand(const std::string& problem, const CommandOptions& options) {
  const double level = intervalLevel(options);
  const Reading reading = options.asStored ? Reading::AsStored : Reading::AsTyped;
  ListedProblem listed = listedProblem(problem, options);
  ProgressBar bar;
  AnalysisOptions how;
  how.progress = [&](double share) { bar.show(share); };
  const std::unique_ptr<Analysis> analysis = analyse(std::move(listed), level, reading, how);
  if (options.json)
    printLine(analysisJson(problem, *analysis));
  else
    printAnalysis(*analysis);
  finishOutput();
  const Verdict verdict = analysis->opinion.precise.finding.verdict;
  return verdict == Verdict::NotDetermined || verdict == Verdict::NotFinite ? ExitCode::NoFit : ExitCode::Success;
}

}  // namespace tavimor
