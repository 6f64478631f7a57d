#pragma once

#include <algorithm>

#include "model/per_variable.h"
#include "runtime/long.h"

namespace tavimor {

/// The axis that runs fastest: the first one as a table lies in memory, the last one as a values file lists it.
enum class Fastest { First, Last };

/// Calls visit(index) for all combinations of indices, axis k running from 0 to last[k]. Where a bound is below 0 there
/// are none.
template <Fastest fastest = Fastest::First, class Visit>
void forEachIndex(const PerVariable<Long>& last, Visit visit) {
  if (std::any_of(last.begin(), last.end(), [](Long bound) { return bound < 0; })) return;
  PerVariable<Long> index{};
  for (int turned = 0; turned < kMaxVariables;) {
    visit(static_cast<const PerVariable<Long>&>(index));
    for (turned = 0; turned < kMaxVariables; ++turned) {
      const int k = fastest == Fastest::First ? turned : kMaxVariables - 1 - turned;
      if (++index[k] <= last[k]) break;
      index[k] = 0;
    }
  }
}

}  // namespace tavimor
