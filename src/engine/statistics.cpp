#include "engine/statistics.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "engine/resume_next.h"

namespace tavimor {

double sumOfGiven(const Table4& f) {
  double sum = 0.0;
  for (std::size_t n = 0; n < f.size(); ++n) sum += f.data()[n];
  return sum;
}

namespace {

constexpr std::size_t kStripWidth = 8;      // a cache line of neighbouring first indices
constexpr std::size_t kLongFirstAxis = 64;  // with a shorter one the points of a first index lie close enough together

// Calls body(offset) for the points whose first index is 0, in the order of the sums: i1 outermost, i3 innermost.
template <class Body>
void forOuterAxes(const Table4& table, Body body) {
  const std::size_t n1 = table.extent(1), n2 = table.extent(2), n3 = table.extent(3);
  for (std::size_t i1 = 0; i1 < n1; ++i1)
    for (std::size_t i2 = 0; i2 < n2; ++i2)
      for (std::size_t i3 = 0; i3 < n3; ++i3) body(table.stride(1) * (i1 + n1 * (i2 + n2 * i3)));
}

// Adds points in their order. The sums are locals, so that the four chains stay in registers.
class PointSums {
 public:
  explicit PointSums(double avgGiven) : avgGiven_(avgGiven) {}

  void addRun(const double* f, const double* e, std::size_t count) {
    GridSums sums = sums_;
    for (std::size_t n = 0; n < count; ++n) add(sums, f[n], e[n]);
    sums_ = sums;
  }

  void addFirstIndex(const Table4& f, const Table4& fitGrid, std::size_t i0) {
    GridSums sums = sums_;
    forOuterAxes(f, [&](std::size_t offset) { add(sums, f.data()[offset + i0], fitGrid.data()[offset + i0]); });
    sums_ = sums;
  }

  const GridSums& sums() const { return sums_; }

 private:
  void add(GridSums& sums, double f, double e) const {
    sums.SumEstimated += e;
    sums.SumSqRegression += (avgGiven_ - e) * (avgGiven_ - e);
    sums.SumRes2 += (f - e) * (f - e);
    sums.SumSqTotal += (avgGiven_ - f) * (avgGiven_ - f);
  }

  double avgGiven_;
  GridSums sums_;
};

// A strip of the table turned, so that the points of each first index follow one another.
void turnStrip(const Table4& table, std::size_t first, std::size_t width, std::vector<double>& turned) {
  const std::size_t length = table.size() / table.extent(0);
  turned.resize(width * length);
  std::size_t n = 0;
  forOuterAxes(table, [&](std::size_t offset) {
    for (std::size_t i = 0; i < width; ++i) turned[i * length + n] = table.data()[offset + first + i];
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
