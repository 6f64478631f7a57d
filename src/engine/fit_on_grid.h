#pragma once

#include <span>
#include <vector>

#include "engine/fit_options.h"
#include "engine/lane_sums.h"
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

/// The same values, to the bit, strip by strip (model/table_strips.h), for who needs them only once.
/// Errors: as FitOnGrid.
class FittedRows {
 public:
  FittedRows(const Problem& problem, const Table4& Coef, const FitOptions& options);

  /// The values of the first indices from `first` on, as many as `turned` has room for.
  void strip(std::size_t first, std::span<double> turned) const;

 private:
  Axis axis_;                 // the first one
  std::size_t terms_;         // of it
  std::size_t length_;        // points of one first index
  std::vector<double> rows_;  // the coefficients of its powers at these points, a row for each power
  decltype(LaneSums::evaluateLine) evaluateLine_;
  decltype(LaneSums::evaluateRows) evaluateRows_;
};

}  // namespace tavimor
