#pragma once

#include <cstddef>

#include "model/problem.h"

namespace tavimor {

/// The values of one variable and its centre of expansion; the deviation of value i is values[i] - centre.
struct Axis {
  const double* values;
  std::size_t count;
  double centre;
};

/// The axis of variable k, declared or not, with LastPoint[k] + 1 values.
/// Errors: SubscriptOutOfRange where the value list is shorter than that.
Axis axisOf(const Problem& problem, Long k);

/// The axes of all four variables. Errors: as axisOf.
PerVariable<Axis> axesOf(const Problem& problem);

}  // namespace tavimor
