#include "model/grid_walk.h"

#include <algorithm>

#include "runtime/run_time_error.h"
#include "runtime/val.h"

namespace tavimor {

Long nextOnRing(Long index, Long last) { return index + 1 > last ? 0 : index + 1; }

Long previousOnRing(Long index, Long last) { return index - 1 < 0 ? last : index - 1; }

PerVariable<Long> nextPoint(const Problem& problem, PerVariable<Long> point) {
  ++point[problem.LastVar];
  for (Long k = problem.LastVar; k >= 0; --k) {
    if (point[k] <= problem.LastPoint[k]) continue;
    point[k] = 0;
    if (k > 0) ++point[k - 1];
  }
  return point;
}

PerVariable<Long> previousPoint(const Problem& problem, PerVariable<Long> point) {
  --point[problem.LastVar];
  for (Long k = problem.LastVar; k >= 0; --k) {
    if (point[k] >= 0) continue;
    point[k] = problem.LastPoint[k];
    if (k > 0) --point[k - 1];
  }
  return point;
}

std::int64_t numberOfPoint(const Problem& problem, const PerVariable<Long>& point) {
  std::int64_t before = 0;
  for (Long k = 0; k <= problem.LastVar; ++k) before = before * (std::int64_t{problem.LastPoint[k]} + 1) + point[k];
  return before + 1;
}

std::optional<PerVariable<Long>> gridPointFromText(const Problem& problem, std::string_view text) {
  PerVariable<Long> point{};
  std::size_t begin = 0;
  for (Long k = 0; k <= problem.LastVar; ++k) {
    if (begin > text.size()) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    const std::size_t end = std::min(text.find(',', begin), text.size());
    const double index = Val(text.substr(begin, end - begin));
    if (index > problem.LastPoint[k]) return std::nullopt;
    point[k] = toLong(index);
    begin = end + 1;
  }
  return point;
}

}  // namespace tavimor
