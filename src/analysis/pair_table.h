#pragma once

#include <vector>

#include "analysis/pair_sums.h"
#include "model/table4.h"

namespace tavimor {

/// A matrix of pairs, row by row.
struct PairMatrix {
  std::size_t rows = 0, columns = 0;
  std::vector<Pair> elements;

  PairMatrix() = default;
  PairMatrix(std::size_t rowCount, std::size_t columnCount)
      : rows(rowCount), columns(columnCount), elements(rowCount * columnCount) {}

  Pair& operator()(std::size_t row, std::size_t column) { return elements[row * columns + column]; }
  const Pair& operator()(std::size_t row, std::size_t column) const { return elements[row * columns + column]; }
};

PairMatrix transposed(const PairMatrix& matrix);

/// A table of pairs over four axes, the first index fastest.
struct PairTable {
  PerVariable<std::size_t> extent{1, 1, 1, 1};
  std::vector<double> high, low;

  PairTable() = default;
  explicit PairTable(const PerVariable<std::size_t>& extents);

  std::size_t size() const { return high.size(); }
  std::size_t stride(int k) const;
  std::size_t place(const PerVariable<std::size_t>& index) const;
  Pair at(std::size_t n) const { return {high[n], low[n]}; }
  void set(std::size_t n, const Pair& value) {
    high[n] = value.high;
    low[n] = value.low;
  }
};

/// The part of a table whose indices are below these extents.
PairTable leadingBlock(const PairTable& table, const PerVariable<std::size_t>& extent);

}  // namespace tavimor
