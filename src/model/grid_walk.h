#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "model/problem.h"

namespace tavimor {

/// The neighbours of an index on a ring of the indices 0 to last. An index beyond the ring's ends enters it at the
/// other end.
Long nextOnRing(Long index, Long last);
Long previousOnRing(Long index, Long last);

/// The grid point behind or before another one: in lexicographic order of the declared variables' indices, the last
/// variable fastest, from the last point on to the first one and back.
PerVariable<Long> nextPoint(const Problem& problem, PerVariable<Long> point);
PerVariable<Long> previousPoint(const Problem& problem, PerVariable<Long> point);

/// The place of a grid point in that order, from 1 to the number of points.
std::int64_t numberOfPoint(const Problem& problem, const PerVariable<Long>& point);

/// The grid point that a text such as "2,0,1" names, one index per declared variable, each rounded to a whole number
/// with halves to even; nothing where a number is greater than its variable's last index. Negative ones pass.
/// Errors: SubscriptOutOfRange for fewer parts than variables, Overflow for a part that no Long holds.
std::optional<PerVariable<Long>> gridPointFromText(const Problem& problem, std::string_view text);

}  // namespace tavimor
