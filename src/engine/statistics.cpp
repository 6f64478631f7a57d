#include "engine/statistics.h"

#include <cmath>

#include "engine/resume_next.h"

namespace tavimor {

double sumOfGiven(const Table4& f) {
  double sum = 0.0;
  for (std::size_t n = 0; n < f.size(); ++n) sum += f.data()[n];
  return sum;
}

GridSums sumOverGrid(const Table4& f, const Table4& fitGrid, double avgGiven) {
  GridSums sums;
  const auto add = [&](double e, double given) {
    sums.SumEstimated += e;
    sums.SumSqRegression += (avgGiven - e) * (avgGiven - e);
    sums.SumRes2 += (given - e) * (given - e);
    sums.SumSqTotal += (avgGiven - given) * (avgGiven - given);
  };
  const std::size_t n0 = f.extent(0), n1 = f.extent(1), n2 = f.extent(2), n3 = f.extent(3);
  for (std::size_t i0 = 0; i0 < n0; ++i0)
    for (std::size_t i1 = 0; i1 < n1; ++i1)
      for (std::size_t i2 = 0; i2 < n2; ++i2)
        for (std::size_t i3 = 0; i3 < n3; ++i3) {
          const std::size_t at = i0 + n0 * (i1 + n1 * (i2 + n2 * i3));
          add(fitGrid.data()[at], f.data()[at]);
        }
  return sums;
}

void fitStatistics(Dimension& model, double sumGiven) {
  const Long n = model.NumGridPoints;
  resumeNext(model, [&] { model.AvgGiven = quotient(sumGiven, n); });
  const GridSums sums = sumOverGrid(model.F, model.FitGrid, model.AvgGiven);
  model.SumRes2 = sums.SumRes2;
  resumeNext(model, [&] { model.AvgEstimated = quotient(sums.SumEstimated, n); });
  if (sums.SumSqTotal == 0.0)
    model.CorrCoef = 1.0;
  else
    resumeNext(model, [&] { model.CorrCoef = squareRoot(quotient(sums.SumSqRegression, sums.SumSqTotal)); });
  // N - 2 in whole numbers first: with two points this divides by zero and leaves the previous value.
  resumeNext(model, [&] { model.StdErr = squareRoot(quotient(sums.SumRes2, addLongs(n, -2))); });
}

}  // namespace tavimor
