#pragma once

#include <optional>
#include <string_view>

#include "model/Dimension.h"

namespace tavimor {

/// The neighbours of an index on a ring of the indices 0 to last. An index beyond the ring's ends enters it at the
/// other end.
Long nextOnRing(Long index, Long last);
Long previousOnRing(Long index, Long last);

/// Moves StartIdx to the next or the previous grid point of the declared variables: in lexicographic order, the last
/// variable fastest, from the last point on to the first one and back.
void moveToNextPoint(Dimension& model);
void moveToPreviousPoint(Dimension& model);

/// The function's value at the grid point StartIdx.
/// Errors: SubscriptOutOfRange for an index beyond its variable's values.
double& functionAtStartIdx(Dimension& model);

/// The grid point that a text such as "2,0,1" names, one index per declared variable, each rounded to a whole number
/// with halves to even; nothing where a number is greater than its variable's last index. Negative ones pass.
/// Errors: SubscriptOutOfRange for fewer parts than variables, Overflow for a part that no Long holds.
std::optional<PerVariable<Long>> gridPointFromText(const Dimension& model, std::string_view text);

}  // namespace tavimor
