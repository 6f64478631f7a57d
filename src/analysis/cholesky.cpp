#include "analysis/cholesky.h"

namespace tavimor {

namespace {

Pair dotOfRows(const PairMatrix& matrix, std::size_t a, std::size_t b, std::size_t count) {
  Pair sum;
  for (std::size_t n = 0; n < count; ++n) sum = sum + matrix(a, n) * matrix(b, n);
  return sum;
}

}  // namespace

std::optional<PairMatrix> choleskyFactor(const PairMatrix& matrix, const AnalysisOptions& options) {
  PairMatrix lower(matrix.rows, matrix.rows);
  for (std::size_t row = 0; row < matrix.rows; ++row) {
    goOn(options);
    for (std::size_t column = 0; column < row; ++column)
      lower(row, column) = (matrix(row, column) - dotOfRows(lower, row, column, column)) / lower(column, column);
    const Pair pivot = matrix(row, row) - dotOfRows(lower, row, row, row);
    if (!(pivot.high > 0.0)) return std::nullopt;
    lower(row, row) = squareRoot(pivot);
  }
  return lower;
}

PairMatrix inverseOfLower(const PairMatrix& lower, const AnalysisOptions& options) {
  PairMatrix inverse(lower.rows, lower.rows);
  for (std::size_t row = 0; row < lower.rows; ++row) {
    goOn(options);
    const Pair reciprocal = Pair(1.0) / lower(row, row);
    inverse(row, row) = reciprocal;
    for (std::size_t column = 0; column < row; ++column) {
      Pair sum;
      for (std::size_t n = column; n < row; ++n) sum = sum + lower(row, n) * inverse(n, column);
      inverse(row, column) = -(sum * reciprocal);
    }
  }
  return inverse;
}

}  // namespace tavimor
