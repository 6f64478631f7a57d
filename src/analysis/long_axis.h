#pragma once

#include "analysis/axis_basis.h"
#include "analysis/function_values.h"

namespace tavimor {

/// From so many values on, the one axis of a problem of one variable is streamed through its recurrence: nothing of
/// the size values * terms is stored.
constexpr std::size_t kLongAxis = 16384;

/// What one pass over a long axis and its function gives.
struct LongAxisSums {
  AxisBasis basis;      // without the values
  std::vector<Pair> y;  // the inner products of the polynomials and the function
  Pair sumOfSquares;
  bool exactFunction = false;
};

/// Equally spaced values have the discrete Chebyshev polynomials, whose norms are known, and two values that lie
/// opposite each other share the work. For other values the inner products of the polynomials are summed too.
/// Errors: OutOfMemory, AnalysisCancelled.
LongAxisSums longAxisSums(const AxisData& axis, const FunctionValues& function, const AnalysisOptions& options);

/// Calls visit(first, count, polynomials) for consecutive blocks of at most kMostDotted values: polynomial j at value
/// first + i stands at place j * kMostDotted + i.
template <class Visit>
void forEachBlock(const AxisData& axis, const AxisBasis& basis, const PairSums& sums, Visit visit);

template <class Visit>
void forEachBlock(const AxisData& axis, const AxisBasis& basis, const PairSums& sums, Visit visit) {
  PairList t(kMostDotted), polynomials(kMostDotted * axis.terms);
  std::vector<double> largest(axis.terms);
  for (std::size_t first = 0; first < axis.count; first += kMostDotted) {
    const std::size_t count = axis.count - first < kMostDotted ? axis.count - first : kMostDotted;
    coordinates(axis, basis.frame, sums, first, count, t);
    for (std::size_t n = 0; n < kMostDotted; ++n) polynomials.high[n] = n < count ? 1.0 : 0.0;
    fillPolynomials(basis.recurrence, sums, Pairs(t), kMostDotted, polynomials, largest);
    visit(first, count, ConstPairs(Pairs(polynomials)));
  }
}

}  // namespace tavimor
