#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "model/problem.h"

namespace tavimor {

/// The values of variable k, LastPoint[k] + 1 of them.
std::span<const double> gridValues(const Problem& problem, Long k);

/// The first value of variable k that is this number; nothing where there is none.
std::optional<Long> gridIndexOf(const Problem& problem, Long k, double value);

/// For each number the index of the nearest value of variable k. One that is not finite is near to none.
/// The variable has a finite value.
std::vector<Long> nearestIndices(const Problem& problem, Long k, std::span<const double> numbers);

/// What a picture shows of a variable: its interval together with its values, somewhat wider about a single one.
/// Not finite where one of the values is not.
struct ShownRange {
  double lower = 0.0, upper = 0.0;

  bool isFinite() const;
};
ShownRange shownRange(const Problem& problem, Long k);

/// The limits of variable k in ascending order.
ShownRange intervalOf(const Problem& problem, Long k);

/// `count` numbers at equal distances from one end of a range to the other.
std::vector<double> spacedOver(const ShownRange& range, std::size_t count);

/// The indices of element number `number` of a table with these bounds, as it lies in memory.
PerVariable<Long> gridIndexAt(const PerVariable<Long>& last, std::size_t number);

/// The number of the element with these indices.
std::size_t gridNumberOf(const PerVariable<Long>& last, const PerVariable<Long>& index);

/// "x = 0.5, y = 3", for the variables that are asked for.
std::string pointText(const Problem& problem, const PerVariable<double>& point, const PerVariable<bool>& named);
std::string gridPointText(const Problem& problem, const PerVariable<Long>& index);

}  // namespace tavimor
