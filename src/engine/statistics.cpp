#include "engine/statistics.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "engine/resume_next.h"
#include "platform/memory.h"
#include "runtime/checked_arithmetic.h"

namespace tavimor {

double sumOfGiven(const Table4& f) {
  double sum = 0.0;
  for (std::size_t n = 0; n < f.size(); ++n) sum += f.data()[n];
  return sum;
}

namespace {

constexpr std::size_t kStripWidth = 8;      // a cache line of neighbouring first indices
constexpr std::size_t kLongFirstAxis = 64;  // with a shorter one a whole strip would take too much memory

// Calls body(offset) for the points whose first index is 0, in the order of the sums: i1 outermost, i3 innermost.
template <class Body>
void forOuterAxes(const Table4& table, Body body) {
  const std::size_t n1 = table.extent(1), n2 = table.extent(2), n3 = table.extent(3);
  for (std::size_t i1 = 0; i1 < n1; ++i1)
    for (std::size_t i2 = 0; i2 < n2; ++i2)
      for (std::size_t i3 = 0; i3 < n3; ++i3) body(table.stride(1) * (i1 + n1 * (i2 + n2 * i3)));
}

// Adds points in their order.
class PointSums {
 public:
  explicit PointSums(double avgGiven) : avgGiven_(avgGiven) {}

  const GridSums& sums() const { return sums_; }

  // The points of one first index of a table, where they lie.
  void addFirstIndex(const Table4& f, const Table4& fitGrid, std::size_t i0) {
    GridSums sums = sums_;
    forOuterAxes(f, [&](std::size_t offset) {
      const double given = f.data()[offset + i0];
      const double e = fitGrid.data()[offset + i0];
      sums.SumEstimated += e;
      sums.SumSqRegression += square(avgGiven_ - e);
      sums.SumRes2 += square(given - e);
      sums.SumSqTotal += square(avgGiven_ - given);
    });
    sums_ = sums;
  }

  // A run of points. The squares are independent of each other, the sums are four chains: apart, both go at their best.
  void addRun(const double* f, const double* e, std::size_t count) {
    constexpr std::size_t block = 256;
    double regression[block], residuals[block], total[block];
    for (std::size_t first = 0; first < count; first += block) {
      const std::size_t length = std::min(block, count - first);
      for (std::size_t n = 0; n < length; ++n) {
        regression[n] = square(avgGiven_ - e[first + n]);
        residuals[n] = square(f[first + n] - e[first + n]);
        total[n] = square(avgGiven_ - f[first + n]);
      }
      GridSums sums = sums_;
      for (std::size_t n = 0; n < length; ++n) {
        sums.SumEstimated += e[first + n];
        sums.SumSqRegression += regression[n];
        sums.SumRes2 += residuals[n];
        sums.SumSqTotal += total[n];
      }
      sums_ = sums;
    }
  }

 private:
  static double square(double x) { return x * x; }

  double avgGiven_;
  GridSums sums_;
};

// A strip of the table turned, so that the points of each first index follow one another. The next strip lies beside
// this one in memory: it is asked for at the same time.
void turnStrip(const Table4& table, std::size_t first, std::size_t width, std::vector<double>& turned) {
  const std::size_t length = table.size() / table.extent(0);
  turned.resize(width * length);
  std::size_t n = 0;
  forOuterAxes(table, [&](std::size_t offset) {
    const double* from = table.data() + offset + first;
    prefetch(from + kStripWidth);
    for (std::size_t i = 0; i < width; ++i) turned[i * length + n] = from[i];
    ++n;
  });
}

}  // namespace

GridSums sumOverGrid(const Table4& f, const Table4& fitGrid, double avgGiven) {
  const std::size_t n0 = f.extent(0);
  PointSums sums(avgGiven);
  if (n0 == f.size()) {
    sums.addRun(f.data(), fitGrid.data(), n0);
  } else if (n0 < kLongFirstAxis) {
    for (std::size_t i0 = 0; i0 < n0; ++i0) sums.addFirstIndex(f, fitGrid, i0);
  } else {
    std::vector<double> stripOfF, stripOfFit;
    for (std::size_t i0 = 0; i0 < n0; i0 += kStripWidth) {
      turnStrip(f, i0, std::min(kStripWidth, n0 - i0), stripOfF);
      turnStrip(fitGrid, i0, std::min(kStripWidth, n0 - i0), stripOfFit);
      sums.addRun(stripOfF.data(), stripOfFit.data(), stripOfF.size());
    }
  }
  return sums.sums();
}

StatisticsOutcome fitStatistics(const Table4& f, const Table4& fitGrid, double sumGiven, Long n,
                                const Statistics& earlier) {
  StatisticsOutcome outcome{earlier};
  Statistics& figures = outcome.figures;
  const auto set = [&](double& figure, auto formula) { resumeNext(outcome.ErrNumber, [&] { figure = formula(); }); };
  set(figures.AvgGiven, [&] { return quotient(sumGiven, n); });
  const GridSums sums = sumOverGrid(f, fitGrid, figures.AvgGiven);
  figures.SumRes2 = sums.SumRes2;
  set(figures.AvgEstimated, [&] { return quotient(sums.SumEstimated, n); });
  set(figures.CorrCoef,
      [&] { return sums.SumSqTotal == 0.0 ? 1.0 : squareRoot(quotient(sums.SumSqRegression, sums.SumSqTotal)); });
  // n - 2 in whole numbers first: with two points this divides by zero and leaves the previous value.
  set(figures.StdErr, [&] { return squareRoot(quotient(sums.SumRes2, addLongs(n, -2))); });
  return outcome;
}

}  // namespace tavimor
