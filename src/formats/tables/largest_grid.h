#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "formats/tables/grid_points.h"

namespace tavimor {

/// A full grid within an incomplete one.
struct FullGrid {
  struct LeftOut {
    std::size_t variable;
    std::size_t value;
  };

  std::vector<LeftOut> leftOut;         // by variable, then by value
  std::vector<std::vector<bool>> kept;  // of each variable, each value
  std::uint64_t lostPoints = 0;         // that are there and go with the values
};

/// Leaves out one value after the other, each time the one of which the greatest part of the points misses, and of
/// several such values the one with which the fewest points go, until nothing misses. Nothing where a variable would
/// keep fewer than two values. A greedy choice: a larger full grid can exist.
std::optional<FullGrid> largestFullGrid(const GridPoints& points, const SortedPoints& sorted);

}  // namespace tavimor
