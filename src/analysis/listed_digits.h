#pragma once

#include <optional>

#include "analysis/precise_fit.h"
#include "model/fit.h"

namespace tavimor {

/// How many digits of listed results are right.
struct ListedDigits {
  std::vector<double> coefficients;  // as those of the precise fit
  double worst = 15.0;               // of the coefficients that are no noise
  std::size_t worstCoefficient = 0;  // its number; only where worst is below 15
  std::optional<double> correlation, standardError, residualSum, averageGiven, averageEstimated;
};

/// A figure that has no value is nothing: the standard error of two points, and a sum of squared residuals that is
/// listed as 0 where it cannot be told from 0. Errors: SubscriptOutOfRange where the fit has other degrees than the
/// precise one.
ListedDigits listedDigits(const Fit& listed, const PreciseFit& precise);

}  // namespace tavimor
