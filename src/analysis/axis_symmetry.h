#pragma once

#include <vector>

#include "analysis/pair_sums.h"

namespace tavimor {

/// The values of an axis that lie symmetrically about its middle, t_i = -t_{count-1-i} exactly, in the first half.
struct Mirrored {
  std::vector<std::size_t> values;  // their numbers in ascending order; none where most values are not so
  double moved = 0.0;               // how far a coordinate was moved at most, the rounding included
};

/// Coordinates that miss this by `most` at most are moved there: each becomes half the difference of itself and the one
/// opposite. Others stay where they are; but where one misses it by far, no value counts as mirrored.
Mirrored mirrored(Pairs t, std::size_t count, double most);

}  // namespace tavimor
