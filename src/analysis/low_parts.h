#pragma once

#include "analysis/pair_sums.h"
#include "analysis/typed_value.h"

namespace tavimor {

/// The low parts of what values stand for: 0 as stored, of which nothing is seen then.
TypedValues lowParts(Reading reading, const PairSums& sums, const double* values, std::size_t count, double* low);

}  // namespace tavimor
