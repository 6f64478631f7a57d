#pragma once

#include "analysis/axis_basis.h"

namespace tavimor {

/// From the orthonormal functions of an axis to powers of the deviation from a centre: function number j is the sum
/// over a of matrix(a, j) * 2^(exponent a) * (x - centre)^a.
struct PowerTransform {
  PairMatrix matrix;  // terms x terms, upper triangular
  int exponent = 0;
  std::vector<double> norm;   // of each row
  std::vector<double> error;  // of each row, at most, beside its norm
};

/// The powers of what: of the deviation in the unit of the variable, or in that of the coordinate (exponent 0).
enum class PowerUnit { Variable, Coordinate };

PowerTransform powerTransform(const AxisBasis& basis, const Pair& centre, PowerUnit unit = PowerUnit::Variable);

}  // namespace tavimor
