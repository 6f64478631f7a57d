#include "engine/axis.h"

#include "model/value_lists.h"
#include "runtime/run_time_error.h"

namespace tavimor {

Axis axisOf(const Problem& problem, Long k) {
  const std::vector<double>& values = valueList(problem, k);
  if (problem.LastPoint[k] < 0 || std::ssize(values) <= problem.LastPoint[k])
    throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
  return {values.data(), static_cast<std::size_t>(problem.LastPoint[k]) + 1, problem.Centre[k]};
}

PerVariable<Axis> axesOf(const Problem& problem) {
  PerVariable<Axis> axes{};
  for (Long k = 0; k < kMaxVariables; ++k) axes[k] = axisOf(problem, k);
  return axes;
}

}  // namespace tavimor
