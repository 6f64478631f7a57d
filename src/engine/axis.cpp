#include "engine/axis.h"

#include "model/value_lists.h"
#include "runtime/run_time_error.h"

namespace tavimor {

Axis axisOf(const Dimension& model, Long k) {
  const std::vector<double>& values = valueList(model, k);
  if (model.LastPoint[k] < 0 || std::ssize(values) <= model.LastPoint[k])
    throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
  return {values.data(), static_cast<std::size_t>(model.LastPoint[k]) + 1, model.Centre[k]};
}

}  // namespace tavimor
