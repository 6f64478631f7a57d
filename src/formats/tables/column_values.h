#pragma once

#include <cstdint>
#include <limits>
#include <span>
#include <string>
#include <vector>

#include "formats/tables/large_list.h"

namespace tavimor {

/// In the place of an index where a row has no number.
constexpr std::uint32_t kNoIndex = std::numeric_limits<std::uint32_t>::max();

/// Values that stand for one.
struct MergedValues {
  std::vector<double> values;  // ascending, the kept one among them
  double kept;
};

/// The different values of a column, ascending, and which of them stands in each row.
struct ColumnValues {
  std::vector<double> values;
  LargeList<std::uint32_t> index;  // of each row; kNoIndex where it has no number
  std::vector<MergedValues> merged;
};

/// Finds the values of a column. Those that differ by no more than `tolerance` times the column's range from the lowest
/// of their kind are one: the most frequent of them, the lowest one of equally frequent ones.
ColumnValues findValues(std::span<const double> numbers, double tolerance);

}  // namespace tavimor
