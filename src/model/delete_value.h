#pragma once

#include "model/problem.h"

namespace tavimor {

/// Takes value r of variable v away by moving the last value into its place, in the list and in F, which both shrink
/// by one. The order of the values is therefore not kept. Does nothing for a v outside 0..3 or a single value.
/// Errors: SubscriptOutOfRange for an r beyond the list.
void deleteValue(Problem& problem, Long v, Long r);

}  // namespace tavimor
