#include "analysis/analysis.h"

#include "analysis/part_of_work.h"
#include "engine/fit.h"
#include "model/capture_specs.h"
#include "runtime/number_text.h"

namespace tavimor {

namespace {

// The shares of the work that are done when a stage ends.
constexpr double kOpinionThere = 0.4, kStoredFitChecked = 0.6, kResidualsThere = 0.8;

FitOutcome fitUnlessCancelled(const Problem& problem, const AnalysisOptions& options) {
  FitOptions how;
  how.threads = options.threads;
  how.instructionSet = options.instructionSet;
  how.fittedValues = FittedValues::PassedThrough;
  how.isCalledOff = options.cancelled;
  how.progress = options.progress;
  FitOutcome outcome = fit(problem, how);
  goOn(options);
  return outcome;
}

bool showSameNumbers(const Table4& a, const Table4& b) {
  if (a.last() != b.last()) return false;
  for (std::size_t n = 0; n < a.size(); ++n)
    if (numberText(a.data()[n]) != numberText(b.data()[n])) return false;
  return true;
}

// A fit always has the same bits, so stored results are those of the data or of other data.
bool areOfTheseData(const Analysis& analysis, const AnalysisOptions& options) {
  const Table4& stored = analysis.listed.fit.Coef;
  if (showSameNumbers(stored, fitUnlessCancelled(analysis.problem(), options).fit.Coef)) return true;
  return analysis.opinion.isExact() && showSameNumbers(stored, listedForm(analysis.opinion.precise).Coef);
}

// The digits about the middle, measured.
std::optional<double> digitsInTheMiddle(const Analysis& analysis, const AnalysisOptions& options) {
  Problem moved = analysis.problem();
  AllSpecFields fields = analysis.listed.fields;
  for (SpecFields& field : fields) field.txtExpansion = "*";
  CaptureSpecs(moved, fields);
  const FitOutcome outcome = fitUnlessCancelled(moved, options);
  if (outcome.end != FitEnd::Found) return std::nullopt;
  const SecondOpinion& opinion = analysis.opinion;
  const PreciseFit precise = preciseFit(opinion.decomposition, middlesOf(opinion.data));
  if (precise.finding.verdict != Verdict::Exact) return std::nullopt;
  return listedDigits(outcome.fit, precise).worst;
}

TriedRemedy triedRemedy(const Analysis& analysis, const AnalysisOptions& options) {
  const SecondOpinion& opinion = analysis.opinion;
  TriedRemedy tried;
  tried.digitsNow = analysis.digits.worst;
  tried.remedy = adviseRemedy(opinion.data, opinion.decomposition, tried.digitsNow).remedy;
  if (tried.remedy == Remedy::CentreInTheMiddle) {
    tried.digitsThen = digitsInTheMiddle(analysis, options);
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

void addDigits(Analysis& analysis, const AnalysisOptions& options) {
  analysis.digits = listedDigits(analysis.listed.fit, analysis.opinion.precise);
  if (analysis.listed.from != ListedFrom::FilesOfOtherData) analysis.remedy = triedRemedy(analysis, options);
}

}  // namespace

std::unique_ptr<Analysis> analyse(ListedProblem listed, double level, Reading reading, const AnalysisOptions& options) {
  auto analysis = std::make_unique<Analysis>(std::move(listed));
  ListedProblem& what = analysis->listed;
  analysis->level = level;
  analysis->opinion =
      secondOpinionOn(what.problem, reading, centresFromFields(what.fields), partOf(options, 0.0, kOpinionThere));
  if (what.from == ListedFrom::Files && !areOfTheseData(*analysis, partOf(options, kOpinionThere, kStoredFitChecked)))
    what.from = ListedFrom::FilesOfOtherData;
  if (!analysis->opinion.isExact()) return analysis;
  addInference(*analysis, partOf(options, kStoredFitChecked, kResidualsThere));
  if (what.hasListed()) addDigits(*analysis, partOf(options, kResidualsThere, 1.0));
  return analysis;
}

}  // namespace tavimor
