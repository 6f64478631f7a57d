#pragma once

#include "engine/compute_options.h"
#include "model/Dimension.h"

namespace tavimor {

/// The sum of the given values: i3 outermost, i0 innermost, one chain.
double sumOfGiven(const Table4& f);

/// The sums over the grid that the statistics need, e being the fitted and f the given value at a point.
/// Order: i0 outermost, i3 innermost, each sum one chain.
struct GridSums {
  double SumEstimated = 0.0;     // e
  double SumSqRegression = 0.0;  // (AvgGiven - e)^2, about the average of the given values
  double SumRes2 = 0.0;          // (f - e)^2
  double SumSqTotal = 0.0;       // (AvgGiven - f)^2
};
GridSums sumOverGrid(const Table4& f, const Table4& fitGrid, double avgGiven);

/// Sets the statistics from F and FitGrid, N being NumGridPoints:
///   AvgGiven = sum f / N,   AvgEstimated = sum e / N,   SumRes2,
///   CorrCoef = sqrt(SumSqRegression / SumSqTotal), not clipped, and 1 where SumSqTotal is exactly 0,
///   StdErr   = sqrt(SumRes2 / (N - 2)); the divisor is N - 2 whatever the number of terms.
/// With N = 2, and with N = 1 unless SumRes2 is 0, StdErr has no value: it keeps the earlier one and ErrNumber says
/// why.
void fitStatistics(Dimension& model, double sumGiven);

}  // namespace tavimor
