#include "engine/statistics.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "engine/called_off.h"
#include "engine/lane_sums.h"
#include "engine/resume_next.h"
#include "model/table_strips.h"
#include "runtime/checked_arithmetic.h"

namespace tavimor {

namespace {

double square(double x) { return x * x; }

// The sums with further points. They are four chains: what else a point takes is computed while these wait.
GridSums withPoints(GridSums sums, const double* f, const double* e, std::size_t count, double avgGiven) {
  for (std::size_t n = 0; n < count; ++n) {
    sums.SumEstimated += e[n];
    sums.SumSqRegression += square(avgGiven - e[n]);
    sums.SumRes2 += square(f[n] - e[n]);
    sums.SumSqTotal += square(avgGiven - f[n]);
  }
  return sums;
}

constexpr std::size_t kPointsInLine = 4096;
constexpr std::size_t kPointsInStrip = 32768;  // of more, touching their memory for the first time costs too much

// One line of points is cut into strips of some length. Of a grid's points a strip holds half at most, so that the
// strips of the given and of the fitted values together take no more memory than a table does.
std::size_t stripWidth(const Table4& f) {
  const std::size_t n0 = f.extent(0), length = f.size() / n0;
  if (length == 1) return std::min(kPointsInLine, n0);
  const std::size_t widest = kStripWidth * length <= kPointsInStrip ? kStripWidth : kRowsTogether;
  return std::clamp<std::size_t>(n0 / 2, 1, widest);
}

}  // namespace

FittedStrip stripsOf(const Table4& fitGrid) {
  return [&fitGrid](std::size_t first, std::span<double> turned) { turnStrip(fitGrid, first, turned); };
}

GridSums sumOverGrid(const Table4& f, const FittedStrip& fitted, double avgGiven, const FitOptions& options) {
  const std::size_t n0 = f.extent(0), length = f.size() / n0, width = stripWidth(f);
  std::vector<double> given(width * length), estimated(width * length);
  GridSums sums;
  for (std::size_t first = 0; first < n0; first += width) {
    endIfCalledOff(options);
    const std::size_t points = std::min(width, n0 - first) * length;
    turnStrip(f, first, std::span(given).first(points));
    fitted(first, std::span(estimated).first(points));
    sums = withPoints(sums, given.data(), estimated.data(), points, avgGiven);
  }
  return sums;
}

StatisticsOutcome fitStatistics(const Table4& f, const FittedStrip& fitted, double sumGiven, Long n,
                                const Statistics& earlier, const FitOptions& options) {
  StatisticsOutcome outcome{earlier};
  Statistics& figures = outcome.figures;
  const auto set = [&](double& figure, auto formula) { resumeNext(outcome.ErrNumber, [&] { figure = formula(); }); };
  set(figures.AvgGiven, [&] { return quotient(sumGiven, n); });
  const GridSums sums = sumOverGrid(f, fitted, figures.AvgGiven, options);
  figures.SumRes2 = sums.SumRes2;
  set(figures.AvgEstimated, [&] { return quotient(sums.SumEstimated, n); });
  set(figures.CorrCoef,
      [&] { return sums.SumSqTotal == 0.0 ? 1.0 : squareRoot(quotient(sums.SumSqRegression, sums.SumSqTotal)); });
  // n - 2 in whole numbers first: with two points this divides by zero and leaves the previous value.
  set(figures.StdErr, [&] { return squareRoot(quotient(sums.SumRes2, addLongs(n, -2))); });
  return outcome;
}

}  // namespace tavimor
