#include "analysis/low_parts.h"

#include <algorithm>

namespace tavimor {

TypedValues lowParts(Reading reading, const PairSums& sums, const double* values, std::size_t count, double* low) {
  if (reading == Reading::AsTyped) return sums.typedLows(values, count, low);
  std::fill_n(low, count, 0.0);
  return {false, false};
}

}  // namespace tavimor
