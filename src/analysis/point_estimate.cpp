#include "analysis/point_estimate.h"

#include <cmath>

#include "analysis/contraction.h"
#include "analysis/orthonormal_values.h"

namespace tavimor {

PointEstimate estimateAt(const Decomposition& decomposition, const PerVariable<Pair>& point) {
  PairTable table = decomposition.z;
  PointEstimate estimate;
  estimate.spread = 1.0;
  double error = decomposition.error();
  for (int k = 0; k < kMaxVariables; ++k) {
    const AxisBasis& basis = decomposition.axis[k];
    const OrthonormalAt functions = orthonormalAt(basis, basis.count > 1 ? point[k] : basis.frame.middle);
    PairMatrix column(basis.terms, 1);
    column.elements = functions.values;
    table = contracted(table, k, column, {});
    estimate.spread *= functions.norm;
    error += functions.error / functions.norm + static_cast<double>(basis.terms + 1) * kPairError;
  }
  estimate.value.value = scaled(table.at(0), decomposition.exponent);
  estimate.value.bound = std::ldexp(decomposition.normOfFunction() * estimate.spread * error, decomposition.exponent);
  return estimate;
}

}  // namespace tavimor
