#include "analysis/pair_table.h"

#include <new>

#include "model/grid_indices.h"
#include "runtime/run_time_error.h"

namespace tavimor {

PairMatrix transposed(const PairMatrix& matrix) {
  PairMatrix result(matrix.columns, matrix.rows);
  for (std::size_t row = 0; row < matrix.rows; ++row)
    for (std::size_t column = 0; column < matrix.columns; ++column) result(column, row) = matrix(row, column);
  return result;
}

PairTable::PairTable(const PerVariable<std::size_t>& extents) : extent(extents) {
  const std::size_t count = extents[0] * extents[1] * extents[2] * extents[3];
  try {
    high.resize(count);
    low.resize(count);
  } catch (const std::bad_alloc&) {
    throw RunTimeError(ErrorNumber::OutOfMemory);
  }
}

std::size_t PairTable::stride(int k) const {
  std::size_t distance = 1;
  for (int axis = 0; axis < k; ++axis) distance *= extent[axis];
  return distance;
}

std::size_t PairTable::place(const PerVariable<std::size_t>& index) const {
  return ((index[3] * extent[2] + index[2]) * extent[1] + index[1]) * extent[0] + index[0];
}

PairTable leadingBlock(const PairTable& table, const PerVariable<std::size_t>& extent) {
  PairTable block(extent);
  PerVariable<Long> last{};
  for (int k = 0; k < kMaxVariables; ++k) last[k] = static_cast<Long>(extent[k]) - 1;
  std::size_t n = 0;
  forEachIndex(last, [&](const PerVariable<Long>& index) {
    PerVariable<std::size_t> place{};
    for (int k = 0; k < kMaxVariables; ++k) place[k] = static_cast<std::size_t>(index[k]);
    block.set(n++, table.at(table.place(place)));
  });
  return block;
}

}  // namespace tavimor
