#pragma once

#include "analysis/decomposition.h"

namespace tavimor {

/// The orthonormal functions of an axis at any point, and how far they can be off at most (2-norm).
struct OrthonormalAt {
  std::vector<Pair> values;
  double norm = 0.0;
  double error = 0.0;
};

OrthonormalAt orthonormalAt(const AxisBasis& basis, const Pair& x);

/// The orthonormal functions of an axis at its values: row i, column j. Not for a streamed axis.
PairMatrix orthonormalValues(const AxisBasis& basis);

/// The leverage of each value along an axis: the sum of the squares of its row.
std::vector<Pair> axisLeverages(const PairMatrix& orthonormal);

}  // namespace tavimor
