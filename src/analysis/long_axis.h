#pragma once

#include "analysis/axis_parts.h"

namespace tavimor {

/// Values that lie on a grid but for their last digits share their polynomials with those opposite: see grid_axis.h. Of
/// others the inner products of Chebyshev's polynomials are summed: see chebyshev_axis.h. What lies too unevenly for
/// these has polynomials made of a sample of its values, and all their inner products are summed. Errors: OutOfMemory,
/// AnalysisCancelled.
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
    beginPolynomials(count, polynomials);
    fillPolynomials(basis.recurrence, sums, Pairs(t), kMostDotted, polynomials, largest);
    visit(first, count, ConstPairs(Pairs(polynomials)));
  }
}

}  // namespace tavimor
