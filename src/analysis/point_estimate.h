#pragma once

#include "analysis/precise_fit.h"

namespace tavimor {

/// The precise estimate at a point, which need not be one of the grid.
struct PointEstimate {
  Bounded value;
  double spread = 0.0;  // its standard error is this times the standard deviation of a value of the function
};

/// Undeclared variables of the point do not count.
PointEstimate estimateAt(const Decomposition& decomposition, const PerVariable<Pair>& point);

}  // namespace tavimor
