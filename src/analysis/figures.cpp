#include "analysis/figures.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "analysis/inference.h"
#include "analysis/residual_pass.h"
#include "analysis/right_digits.h"

namespace tavimor {

namespace {

constexpr double kLevel = 0.95;  // of intervals that nobody asks for here

void addCoefficients(const PreciseFit& precise, const Fit& listed, FitFigures& figures) {
  const ListedDigits right = listedDigits(listed, precise);
  const FitStatistics statistics = fitStatisticsOf(precise);
  figures.worstDigits = shownDigits(right.worst);
  for (std::size_t n = 0; n < precise.termCount(); ++n) {
    const PreciseCoefficient& one = precise.coefficients[n];
    const auto digits = one.isNoise() ? std::nullopt : std::optional<Long>(shownDigits(right.coefficients[n]));
    figures.digits.push_back(digits);
    figures.standardErrors.push_back(inferenceOf(one, statistics, kLevel).standardError);
  }
}

Table4 undefinedAtEachPoint(const Problem& problem) {
  Table4 table;
  table.redim(problem.LastPoint);
  std::fill_n(table.data(), table.size(), std::numeric_limits<double>::quiet_NaN());
  return table;
}

}  // namespace

FitFigures fitFigures(const SecondOpinion& opinion, const Problem& problem, const Fit& listed) {
  FitFigures figures;
  const Finding& finding = opinion.precise.finding;
  if (finding.verdict == Verdict::NotDetermined) figures.doubt = reasonText(finding, problem);
  if (opinion.isExact()) addCoefficients(opinion.precise, listed, figures);
  return figures;
}

PointFigures pointFigures(const SecondOpinion& opinion, const Problem& problem, const AnalysisOptions& options) {
  PointFigures figures{undefinedAtEachPoint(problem), undefinedAtEachPoint(problem)};
  if (!opinion.isExact()) return figures;
  const FitStatistics statistics = fitStatisticsOf(opinion.precise);
  const bool hasScale = statistics.s && !statistics.residualsAreZero;
  const int exponent = opinion.decomposition.exponent;
  forEachResidual(opinion.data, opinion.decomposition, options,
                  [&](const Pair& residual, const Pair& leverage, const PerVariable<Long>& at) {
                    const double rest = (Pair(1.0) - leverage).high;
                    figures.leverage(at) = leverage.high;
                    if (hasScale && rest > kLeverageOfOne)
                      figures.studentised(at) = std::ldexp(residual.high, exponent) / (*statistics.s * std::sqrt(rest));
                  });
  return figures;
}

}  // namespace tavimor
