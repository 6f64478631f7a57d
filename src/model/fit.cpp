#include "model/fit.h"

#include <algorithm>
#include <cmath>

namespace tavimor {

bool hasFiniteResults(const Fit& fit) {
  const auto isFinite = [](double value) { return std::isfinite(value); };
  const double figures[] = {fit.CorrCoef, fit.StdErr, fit.SumRes2, fit.AvgGiven, fit.AvgEstimated};
  return std::all_of(std::begin(figures), std::end(figures), isFinite) &&
         std::all_of(fit.Coef.data(), fit.Coef.data() + fit.Coef.size(), isFinite);
}

}  // namespace tavimor
