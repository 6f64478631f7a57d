#pragma once

#include <optional>

#include "analysis/grid_residuals.h"
#include "analysis/point_estimate.h"
#include "analysis/precise_fit.h"

namespace tavimor {

/// Textbook statistics of the precise solution; their definitions stand in statistic_texts.h. Nothing where one is not
/// defined: no degree of freedom left, residuals of 0 as far as can be told, a function that is constant.
/// Source: Draper and Smith, Applied Regression Analysis, 3rd ed., 1998.
struct FitStatistics {
  std::size_t points = 0, terms = 0;
  bool noFreedom = false;         // as many terms as points
  bool residualsAreZero = false;  // as far as can be told
  double rss = 0.0;
  std::optional<double> s, rSquared, adjustedRSquared, f, fP, aicc, bic, gcv, rms;

  std::size_t freedom() const { return points - terms; }
};
FitStatistics fitStatisticsOf(const PreciseFit& fit);

/// The same figures from the sums alone.
FitStatistics statisticsOfSums(std::size_t points, std::size_t terms, const Bounded& residualSum,
                               const Bounded& totalSum);

/// The residual sum of squares of the left-out points beside the total one: 1 - PRESS / TSS.
std::optional<double> predictedRSquared(const PreciseFit& fit, const GridResiduals& residuals);

/// How sure a coefficient is, were the residuals independent errors of one normal distribution.
struct CoefficientInference {
  std::optional<double> standardError, t, p, low, high;
};

/// A level between 0 and 1, such as 0.95, that intervals have.
CoefficientInference inferenceOf(const PreciseCoefficient& coefficient, const FitStatistics& statistics, double level);

/// An estimate with its intervals: of the function's mean there, and of one further value.
struct EstimateInference {
  std::optional<double> standardError, low, high, predictionLow, predictionHigh;
};
EstimateInference inferenceOf(const PointEstimate& estimate, const FitStatistics& statistics, double level);

}  // namespace tavimor
