#include "analysis/second_opinion.h"

#include <cmath>

#include "runtime/number_text.h"

namespace tavimor {

namespace {

double valueOrZero(const Bounded& one) { return std::fabs(one.rounded()) <= one.bound ? 0.0 : one.rounded(); }

std::string quotedName(const Problem& problem, Long variable) { return '"' + problem.VarName[variable] + '"'; }

std::string differentValuesText(const Finding& finding, const Problem& problem) {
  const std::string count = std::to_string(finding.found);
  return "variable " + quotedName(problem, finding.variable) + " has " + count +
         (finding.found == 1 ? " different value" : " different values") + ", and its degree is " +
         numberText(problem.Degree[finding.variable]);
}

}  // namespace

SecondOpinion secondOpinionOn(const Problem& problem, Reading reading, const PerVariable<CentreFrom>& centres,
                              const AnalysisOptions& options) {
  SecondOpinion opinion;
  opinion.data = problemData(problem, reading, centres);
  opinion.decomposition = decompose(opinion.data, options);
  opinion.precise = preciseFit(opinion.decomposition, centresOf(opinion.data), options);
  return opinion;
}

Fit listedForm(const PreciseFit& precise) {
  Fit fit;
  PerVariable<Long> last{};
  for (int k = 0; k < kMaxVariables; ++k) last[k] = static_cast<Long>(precise.terms[k]) - 1;
  fit.Coef.redim(last);
  for (std::size_t n = 0; n < precise.termCount(); ++n) fit.Coef.data()[n] = precise.coefficients[n].solution.rounded();
  fit.SumRes2 = valueOrZero(precise.residualSum);
  fit.AvgGiven = fit.AvgEstimated = precise.mean.rounded();
  const double total = valueOrZero(precise.totalSum);
  fit.CorrCoef = total == 0.0 ? 1.0 : std::sqrt(std::fmax(0.0, 1 - fit.SumRes2 / total));
  if (precise.points > 2) fit.StdErr = std::sqrt(fit.SumRes2 / static_cast<double>(precise.points - 2));
  fit.FitDone = true;
  return fit;
}

const char* verdictName(Verdict verdict) {
  switch (verdict) {
    case Verdict::Exact: return "exact";
    case Verdict::NotCertified: return "not certified";
    case Verdict::NotDetermined: return "not determined";
    case Verdict::NotFinite: return "not finite";
  }
  return "";
}

std::string reasonText(const Finding& finding, const Problem& problem) {
  const std::string ofVariable = " of variable " + quotedName(problem, finding.variable);
  switch (finding.obstacle) {
    case Obstacle::None: return "";
    case Obstacle::FewDifferentValues: return differentValuesText(finding, problem);
    case Obstacle::DegreeTooHigh: return "the degree" + ofVariable + " is above " + std::to_string(kMostTerms - 1);
    case Obstacle::ValuesTooUneven:
      return "the values" + ofVariable + " are too uneven for its degree, or lie too close together";
    case Obstacle::ValueNotFinite: return "a value, a limit or the centre" + ofVariable + " is no finite number";
    case Obstacle::FunctionNotFinite: return "a value of the function is no finite number";
    case Obstacle::CoefficientsTooLarge: return "a coefficient is too large or too small for the arithmetic";
  }
  return "";
}

}  // namespace tavimor
