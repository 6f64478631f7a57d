#include "cli/analysis.h"

#include "cli/fitting.h"
#include "cli/problem_changes.h"
#include "cli/problem_files.h"
#include "cli/progress_bar.h"
#include "model/capture_specs.h"
#include "model/value_lists.h"
#include "report/term_text.h"
#include "runtime/number_text.h"

namespace tavimor {

namespace {

bool showSameNumbers(const Table4& a, const Table4& b) {
  if (a.last() != b.last()) return false;
  for (std::size_t n = 0; n < a.size(); ++n)
    if (numberText(a.data()[n]) != numberText(b.data()[n])) return false;
  return true;
}

// A fit always has the same bits, so stored results are those of the data or of other data.
ListedFrom provideListed(Analysis& analysis, const CommandOptions& options) {
  OpenedProblem& opened = analysis.opened;
  if (!opened.fit.FitDone || asksForAnotherFit(options)) {
    applyChanges(options, opened);
    return fitShowingProgress(opened).end == FitEnd::Found ? ListedFrom::FitMadeNow : ListedFrom::Nowhere;
  }
  CaptureSpecs(opened.problem, opened.fields);
  return ListedFrom::Files;
}

bool areOfTheseData(const Analysis& analysis) {
  const Fit& stored = analysis.opened.fit;
  if (showSameNumbers(stored.Coef, fit(analysis.opened.problem).fit.Coef)) return true;
  return analysis.opinion.isExact() && showSameNumbers(stored.Coef, listedForm(analysis.opinion.precise).Coef);
}

// The digits about the middle, measured.
std::optional<double> digitsInTheMiddle(const Analysis& analysis) {
  OpenedProblem moved = analysis.opened;
  for (SpecFields& fields : moved.fields) fields.txtExpansion = "*";
  CaptureSpecs(moved.problem, moved.fields);
  const FitOutcome outcome = fit(moved.problem);
  if (outcome.end != FitEnd::Found) return std::nullopt;
  const SecondOpinion& opinion = analysis.opinion;
  const PreciseFit precise = preciseFit(opinion.decomposition, middlesOf(opinion.data));
  if (precise.finding.verdict != Verdict::Exact) return std::nullopt;
  return listedDigits(outcome.fit, precise).worst;
}

TriedRemedy triedRemedy(const Analysis& analysis) {
  const SecondOpinion& opinion = analysis.opinion;
  TriedRemedy tried;
  tried.digitsNow = analysis.digits.worst;
  tried.remedy = adviseRemedy(opinion.data, opinion.decomposition, tried.digitsNow).remedy;
  if (tried.remedy == Remedy::CentreInTheMiddle) {
    tried.digitsThen = digitsInTheMiddle(analysis);
    // Foretold is not measured: advice that does not help is none.
    if (!tried.digitsThen || *tried.digitsThen <= tried.digitsNow) tried = {Remedy::None, tried.digitsNow, {}};
  } else if (tried.remedy == Remedy::PreciseCoefficients) {
    tried.digitsThen = listedDigits(listedForm(opinion.precise), opinion.precise).worst;
  }
  return tried;
}

void addInference(Analysis& analysis, const AnalysisOptions& options) {
  const PreciseFit& precise = analysis.opinion.precise;
  analysis.statistics = fitStatisticsOf(precise);
  analysis.residuals = gridResiduals(analysis.opinion.data, analysis.opinion.decomposition, options);
  if (analysis.statistics.residualsAreZero) {
    if (analysis.residuals.press) analysis.residuals.press = 0.0;
    analysis.residuals.largest = 0.0;
  }
  analysis.predictedRSquared = predictedRSquared(precise, analysis.residuals);
  for (const PreciseCoefficient& one : precise.coefficients)
    analysis.inference.push_back(inferenceOf(one, analysis.statistics, analysis.level));
}

}  // namespace

Analysis analysisOf(const std::string& path, const CommandOptions& options) {
  Analysis analysis;
  analysis.level = intervalLevel(options);
  analysis.opened = openShowingProgress(path);
  analysis.listedFrom = provideListed(analysis, options);
  ProgressBar bar;
  AnalysisOptions how;
  how.progress = [&](double share) { bar.show(share); };
  const Reading reading = options.asStored ? Reading::AsStored : Reading::AsTyped;
  analysis.opinion = secondOpinionOn(analysis.opened.problem, reading, centresFromFields(analysis.opened), how);
  if (analysis.listedFrom == ListedFrom::Files && !areOfTheseData(analysis))
    analysis.listedFrom = ListedFrom::FilesOfOtherData;
  if (!analysis.opinion.isExact()) return analysis;
  addInference(analysis, how);
  if (!analysis.hasListed()) return analysis;
  analysis.digits = listedDigits(analysis.opened.fit, analysis.opinion.precise);
  if (analysis.listedFrom != ListedFrom::FilesOfOtherData) analysis.remedy = triedRemedy(analysis);
  return analysis;
}

std::vector<double> gridPoint(const Problem& problem, const PerVariable<Long>& index) {
  std::vector<double> point;
  for (Long k = 0; k <= problem.LastVar; ++k) point.push_back(valueOf(problem, k, index[k]));
  return point;
}

std::string plainTerm(const Problem& problem, const PerVariable<Long>& power) {
  const std::string text = termText(problem, power);
  return text.empty() ? "1" : text.substr(1);
}

}  // namespace tavimor
