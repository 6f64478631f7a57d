#include "analysis/pictures/grid_values.h"

#include <algorithm>
#include <cmath>

#include "model/value_lists.h"
#include "runtime/number_text.h"

namespace tavimor {

std::span<const double> gridValues(const Problem& problem, Long k) {
  const std::vector<double>& list = valueList(problem, k);
  return std::span(list).first(std::min(list.size(), static_cast<std::size_t>(problem.LastPoint[k]) + 1));
}

std::optional<Long> gridIndexOf(const Problem& problem, Long k, double value) {
  const std::span<const double> values = gridValues(problem, k);
  const auto found = std::find(values.begin(), values.end(), value);
  if (found == values.end()) return std::nullopt;
  return static_cast<Long>(found - values.begin());
}

std::vector<Long> nearestIndices(const Problem& problem, Long k, std::span<const double> numbers) {
  const std::span<const double> values = gridValues(problem, k);
  std::vector<Long> order;
  for (Long i = 0; i < std::ssize(values); ++i)
    if (std::isfinite(values[i])) order.push_back(i);
  std::stable_sort(order.begin(), order.end(), [&](Long a, Long b) { return values[a] < values[b]; });
  std::vector<Long> nearest;
  for (const double number : numbers) {
    auto above = std::lower_bound(order.begin(), order.end(), number, [&](Long i, double x) { return values[i] < x; });
    const bool isBelow =
        above == order.end() || (above != order.begin() && number - values[above[-1]] < values[*above] - number);
    nearest.push_back(isBelow ? above[-1] : *above);
  }
  return nearest;
}

bool ShownRange::isFinite() const { return std::isfinite(upper) && std::isfinite(lower); }

ShownRange intervalOf(const Problem& problem, Long k) {
  return {std::min(problem.LowerLimit[k], problem.UpperLimit[k]),
          std::max(problem.LowerLimit[k], problem.UpperLimit[k])};
}

ShownRange shownRange(const Problem& problem, Long k) {
  ShownRange range = intervalOf(problem, k);
  for (const double value : gridValues(problem, k)) {
    if (!std::isfinite(value)) return {value, value};
    range = {std::min(range.lower, value), std::max(range.upper, value)};
  }
  if (range.lower != range.upper) return range;
  const double margin = range.lower == 0.0 ? 1.0 : std::fabs(range.lower) / 20;
  return {range.lower - margin, range.upper + margin};
}

std::vector<double> spacedOver(const ShownRange& range, std::size_t count) {
  std::vector<double> numbers(count);
  for (std::size_t n = 0; n < count; ++n) {
    const double share = static_cast<double>(n) / static_cast<double>(count - 1);
    numbers[n] = range.lower * (1 - share) + range.upper * share;
  }
  return numbers;
}

PerVariable<Long> gridIndexAt(const PerVariable<Long>& last, std::size_t number) {
  PerVariable<Long> index{};
  for (int k = 0; k < kMaxVariables; ++k) {
    const std::size_t extent = static_cast<std::size_t>(last[k]) + 1;
    index[k] = static_cast<Long>(number % extent);
    number /= extent;
  }
  return index;
}

std::size_t gridNumberOf(const PerVariable<Long>& last, const PerVariable<Long>& index) {
  std::size_t number = 0;
  for (int k = kMaxVariables - 1; k >= 0; --k)
    number = number * (static_cast<std::size_t>(last[k]) + 1) + static_cast<std::size_t>(index[k]);
  return number;
}

std::string pointText(const Problem& problem, const PerVariable<double>& point, const PerVariable<bool>& named) {
  std::string text;
  for (Long k = 0; k <= problem.LastVar; ++k)
    if (named[k]) text += (text.empty() ? "" : ", ") + problem.VarName[k] + " = " + numberText(point[k]);
  return text;
}

std::string gridPointText(const Problem& problem, const PerVariable<Long>& index) {
  PerVariable<double> point{};
  for (Long k = 0; k <= problem.LastVar; ++k) point[k] = valueOf(problem, k, index[k]);
  return pointText(problem, point, {true, true, true, true});
}

}  // namespace tavimor
