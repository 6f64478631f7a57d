#pragma once

#include "engine/fit_options.h"
#include "model/problem.h"

namespace tavimor {

/// Value i of variable k minus its centre; 0 for a k outside 0..3.
/// Errors: SubscriptOutOfRange for an index beyond the list.
double Deviation(const Problem& problem, Long k, Long i);

/// The fitted polynomial at every grid point, shaped like F, one axis at a time from LastVar down to 0:
///   line(i) = sum over a of line(a) * d_i^a,   d_i = Deviation(k, i),
/// for every line along axis k, each sum from a = 0 on, each power by repeated multiplication. The coefficients are
/// laid into the corner of the grid first.
/// Shapes: Coef has the bounds Degree.
/// Errors: SubscriptOutOfRange where a degree exceeds the last value index of its axis, OutOfMemory.
/// Source: Van Loan, The ubiquitous Kronecker product, J. Comput. Appl. Math. 123 (2000).
Table4 FitOnGrid(const Problem& problem, const Table4& Coef, const FitOptions& options = {});

}  // namespace tavimor
