#include "engine/right_hand_side.h"

#include <algorithm>
#include <vector>

#include "engine/called_off.h"
#include "engine/lane_sums.h"
#include "engine/parallel.h"
#include "runtime/run_time_error.h"

namespace tavimor {

namespace {

using Axes = PerVariable<Axis>;

constexpr std::size_t kMostPointsPerStrip = 8192;  // between two calls of the progress function

// The loops that define the sums; the lanes give the same bits.
void addPoint(Table4& coef, const PerVariable<double>& d, double f) {
  const PerVariable<Long>& degree = coef.last();
  double* sum = coef.data();
  double p3 = f;
  for (Long j3 = 0; j3 <= degree[3]; ++j3) {
    double p2 = p3;
    for (Long j2 = 0; j2 <= degree[2]; ++j2) {
      double p1 = p2;
      for (Long j1 = 0; j1 <= degree[1]; ++j1) {
        double p0 = p1;
        for (Long j0 = 0; j0 <= degree[0]; ++j0) {
          *sum++ += p0;
          p0 = p0 * d[0];
        }
        p1 = p1 * d[1];
      }
      p2 = p2 * d[2];
    }
    p3 = p3 * d[3];
  }
}

void accumulatePlainly(const Table4& f, const Axes& axis, Table4& coef, const FitOptions& options) {
  const double* value = f.data();
  PerVariable<double> d{};
  const auto deviation = [&](int k, std::size_t i) { d[k] = axis[k].values[i] - axis[k].centre; };
  for (std::size_t i3 = 0; i3 < axis[3].count; ++i3) {
    deviation(3, i3);
    for (std::size_t i2 = 0; i2 < axis[2].count; ++i2) {
      deviation(2, i2);
      for (std::size_t i1 = 0; i1 < axis[1].count; ++i1) {
        deviation(1, i1);
        endIfCalledOff(options);
        for (std::size_t i0 = 0; i0 < axis[0].count; ++i0) {
          deviation(0, i0);
          addPoint(coef, d, *value++);
        }
      }
    }
  }
}

TermGrid termGrid(const LaneSums& lanes, const Table4& f, const Axes& axis, const Table4& coef) {
  TermGrid grid{};
  grid.f = f.data();
  grid.axis = axis;
  for (int k = 0; k < kMaxVariables; ++k) grid.terms[k] = coef.extent(k);
  grid.laneAxis = lanes.bestLaneAxis(grid.terms);
  return grid;
}

void accumulateColumns(const LaneSums& lanes, const TermGrid& grid, Columns columns, std::size_t points, double* coef,
                       const FitOptions& options) {
  std::vector<double> sums(lanes.sumCount(grid, columns));
  const std::size_t strip = piecesBetweenLooks(static_cast<double>(sums.size()), 1, kMostPointsPerStrip);
  for (std::size_t first = 0; first < points; first += strip) {
    endIfCalledOff(options);
    lanes.addPoints(grid, columns, first, std::min(first + strip, points), sums.data());
    if (columns.first == 0 && options.progress)
      options.progress(static_cast<double>(first) / static_cast<double>(points));
  }
  lanes.collect(grid, columns, sums.data(), coef);
}

void accumulateInLanes(const LaneSums& lanes, const Table4& f, const Axes& axis, Table4& coef,
                       const FitOptions& options) {
  const TermGrid grid = termGrid(lanes, f, axis, coef);
  const std::size_t columns = coef.size() / coef.stride(static_cast<int>(grid.laneAxis));
  const std::size_t groups = (columns + lanes.lanes - 1) / lanes.lanes;  // full ones, as far as there are
  const double work = static_cast<double>(f.size()) * static_cast<double>(coef.size());
  inParallel(groups, work / static_cast<double>(groups), options.threads, [&](std::size_t first, std::size_t end) {
    accumulateColumns(lanes, grid, {first * lanes.lanes, std::min(end * lanes.lanes, columns)}, f.size(), coef.data(),
                      options);
  });
}

}  // namespace

Table4 rightHandSide(const Problem& problem, const FitOptions& options) {
  if (problem.F.last() != problem.LastPoint) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
  const Axes axis = axesOf(problem);
  Table4 sums;
  sums.redim(problem.Degree);
  if (const LaneSums* lanes = laneSums(options.instructionSet))
    accumulateInLanes(*lanes, problem.F, axis, sums, options);
  else
    accumulatePlainly(problem.F, axis, sums, options);
  return sums;
}

}  // namespace tavimor
