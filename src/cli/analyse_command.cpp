#include "analysis/figure_texts.h"
#include "analysis/statistic_texts.h"
#include "cli/analysis.h"
#include "cli/commands.h"
#include "cli/output.h"
#include "cli/problem_changes.h"
#include "cli/progress_bar.h"
#include "cli/text_table.h"
#include "model/grid_indices.h"
#include "report/term_text.h"
#include "runtime/number_text.h"

namespace tavimor {

namespace {

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
    case ListedFrom::PreciseSolution: return "Listed is the precise solution.";
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

void printStatistics(const Analysis& analysis) {
  printLine("");
  printLine("STATISTICS of the precise solution, N = " + std::to_string(analysis.statistics.points) +
            " points, P = " + std::to_string(analysis.statistics.terms) + " coefficients:");
  for (const StatisticText& text : statisticTexts())
    printLine(text.name + std::string(" = ") + figureText(analysis, text.key) + "   [" + text.definition + "]");
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
