#pragma once

#include "engine/compute_options.h"
#include "model/Dimension.h"

namespace tavimor {

/// Value i of variable k minus its centre; 0 for a k outside 0..3.
/// Errors: SubscriptOutOfRange for an index beyond the list.
double Deviation(const Dimension& model, Long k, Long i);

/// Fills FitGrid with the fitted polynomial at every grid point, one axis at a time from LastVar down to 0:
///   line(i) = sum over a of line(a) * d_i^a,   d_i = Deviation(k, i),
/// for every line along axis k, each sum from a = 0 on, each power by repeated multiplication. The coefficients are
/// laid into the corner of the grid first.
/// Errors: SubscriptOutOfRange where a degree exceeds the last value index of its axis.
/// Source: Van Loan, The ubiquitous Kronecker product, J. Comput. Appl. Math. 123 (2000).
void FitOnGrid(Dimension& model, const ComputeOptions& options = {});

}  // namespace tavimor
