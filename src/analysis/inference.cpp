#include "analysis/inference.h"

#include <cmath>

#include "analysis/distributions.h"

namespace tavimor {

namespace {

bool isZero(const Bounded& one) { return std::fabs(one.value.high) <= one.bound; }

// Undefined where there are no residuals to compare with.
void addComparisons(FitStatistics& statistics, double rss, double tss) {
  const double n = static_cast<double>(statistics.points), p = static_cast<double>(statistics.terms);
  const double freedom = n - p;
  if (statistics.residualsAreZero || statistics.noFreedom) return;
  if (p > 1 && tss > 0) {
    statistics.f = (tss - rss) / (p - 1) / (rss / freedom);
    statistics.fP = upperFisher(*statistics.f, p - 1, freedom);
  }
  const double parameters = p + 1;  // the variance is one
  statistics.bic = n * std::log(rss / n) + parameters * std::log(n);
  if (n - parameters - 1 > 0)
    statistics.aicc = n * std::log(rss / n) + 2 * parameters + 2 * parameters * (parameters + 1) / (n - parameters - 1);
}

}  // namespace

FitStatistics statisticsOfSums(std::size_t points, std::size_t terms, const Bounded& residualSum,
                               const Bounded& totalSum) {
  FitStatistics statistics;
  statistics.points = points;
  statistics.terms = terms;
  statistics.noFreedom = points <= terms;
  statistics.residualsAreZero = isZero(residualSum);
  const double rss = statistics.residualsAreZero ? 0.0 : residualSum.rounded();
  const double tss = isZero(totalSum) ? 0.0 : totalSum.rounded();
  const double n = static_cast<double>(points), freedom = n - static_cast<double>(terms);
  statistics.rss = rss;
  statistics.rms = std::sqrt(rss / n);
  // In pairs: of a fit that explains little, 1 - RSS / TSS would lose digits.
  if (tss > 0) statistics.rSquared = rss == 0 ? 1.0 : ((totalSum.value - residualSum.value) / totalSum.value).high;
  if (statistics.noFreedom) return statistics;
  statistics.s = std::sqrt(rss / freedom);
  statistics.gcv = n * rss / (freedom * freedom);
  if (tss > 0) statistics.adjustedRSquared = 1 - rss / freedom / (tss / (n - 1));
  addComparisons(statistics, rss, tss);
  return statistics;
}

FitStatistics fitStatisticsOf(const PreciseFit& fit) {
  return statisticsOfSums(fit.points, fit.termCount(), fit.residualSum, fit.totalSum);
}

std::optional<double> predictedRSquared(const PreciseFit& fit, const GridResiduals& residuals) {
  if (!residuals.press || isZero(fit.totalSum)) return std::nullopt;
  return 1 - *residuals.press / fit.totalSum.rounded();
}

CoefficientInference inferenceOf(const PreciseCoefficient& coefficient, const FitStatistics& statistics, double level) {
  CoefficientInference inference;
  if (!statistics.s) return inference;
  const double value = coefficient.solution.rounded(), freedom = static_cast<double>(statistics.freedom());
  const double error = *statistics.s * coefficient.spread;
  const double reach = studentQuantile(level, freedom) * error;
  inference.standardError = error;
  inference.low = value - reach;
  inference.high = value + reach;
  if (statistics.residualsAreZero || error == 0.0) return inference;
  inference.t = value / error;
  inference.p = twoSidedStudent(*inference.t, freedom);
  return inference;
}

EstimateInference inferenceOf(const PointEstimate& estimate, const FitStatistics& statistics, double level) {
  EstimateInference inference;
  if (!statistics.s) return inference;
  const double value = estimate.value.rounded();
  const double factor = studentQuantile(level, static_cast<double>(statistics.freedom()));
  const double error = *statistics.s * estimate.spread;
  const double ofOneMore = *statistics.s * std::sqrt(1 + estimate.spread * estimate.spread);
  inference.standardError = error;
  inference.low = value - factor * error;
  inference.high = value + factor * error;
  inference.predictionLow = value - factor * ofOneMore;
  inference.predictionHigh = value + factor * ofOneMore;
  return inference;
}

}  // namespace tavimor
