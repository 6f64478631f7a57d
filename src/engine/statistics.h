#pragma once

#include <functional>
#include <span>

#include "engine/fit_options.h"
#include "model/fit.h"
#include "runtime/run_time_error.h"

namespace tavimor {

/// Gives the fitted values of a strip of the grid, turned (model/table_strips.h).
using FittedStrip = std::function<void(std::size_t first, std::span<double> turned)>;
FittedStrip stripsOf(const Table4& fitGrid);

/// The sums over the grid that the statistics need, e being the fitted and f the given value at a point.
/// Order: i0 outermost, i3 innermost, each sum one chain.
struct GridSums {
  double SumEstimated = 0.0;     // e
  double SumSqRegression = 0.0;  // (AvgGiven - e)^2, about the average of the given values
  double SumRes2 = 0.0;          // (f - e)^2
  double SumSqTotal = 0.0;       // (AvgGiven - f)^2
};
GridSums sumOverGrid(const Table4& f, const FittedStrip& fitted, double avgGiven, const FitOptions& options = {});

/// The statistics, and the run-time error of the last figure that has no value, 0 where all have one.
struct StatisticsOutcome {
  Statistics figures;
  Long ErrNumber = 0;
};

/// The statistics of n points, whose sum of given values is the first number of the right-hand side:
///   AvgGiven = sumGiven / n,   AvgEstimated = sum e / n,   SumRes2,
///   CorrCoef = sqrt(SumSqRegression / SumSqTotal), not clipped, and 1 where SumSqTotal is exactly 0,
///   StdErr   = sqrt(SumRes2 / (n - 2)); the divisor is n - 2 whatever the number of terms.
/// A figure that has no value stays what it is in `earlier`: StdErr with n = 2, and with n = 1 unless SumRes2 is 0.
StatisticsOutcome fitStatistics(const Table4& f, const FittedStrip& fitted, double sumGiven, Long n,
                                const Statistics& earlier, const FitOptions& options = {});

}  // namespace tavimor
