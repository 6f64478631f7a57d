#pragma once

#include <algorithm>
#include <cmath>

#include "support/full_system.h"

namespace tavimor::test {

/// The greatest sum of magnitudes in a column.
inline long double norm1(const Matrix& matrix) {
  long double greatest = 0;
  for (std::size_t column = 0; column < matrix.size(); ++column) {
    long double sum = 0;
    for (const auto& row : matrix) sum += std::fabs(row[column]);
    greatest = std::max(greatest, sum);
  }
  return greatest;
}

/// The normal matrix of all terms, its rows and columns scaled to a diagonal of 1: so the units of the variables do not
/// count (van der Sluis, Condition numbers and equilibration of matrices, Numer. Math. 14 (1969) 14).
inline Matrix scaledNormalMatrix(const Dimension& model) {
  Matrix matrix = fullNormalEquations(model);
  for (auto& row : matrix) row.pop_back();
  std::vector<long double> scale;
  for (std::size_t n = 0; n < matrix.size(); ++n) scale.push_back(std::sqrt(matrix[n][n]));
  for (std::size_t a = 0; a < matrix.size(); ++a)
    for (std::size_t b = 0; b < matrix.size(); ++b) matrix[a][b] /= scale[a] * scale[b];
  return matrix;
}

/// The inverse of a positive definite matrix.
inline Matrix inverse(Matrix matrix) {
  const std::size_t size = matrix.size();
  for (std::size_t row = 0; row < size; ++row) {
    matrix[row].resize(2 * size);
    matrix[row][size + row] = 1;
  }
  reduceToDiagonal(matrix);
  Matrix result(size, std::vector<long double>(size));
  for (std::size_t row = 0; row < size; ++row)
    for (std::size_t column = 0; column < size; ++column)
      result[row][column] = matrix[row][size + column] / matrix[row][row];
  return result;
}

/// The condition number, in the 1-norm, of the scaled normal matrix of a fit, from its inverse in the longest
/// arithmetic: a number near that arithmetic's own 1E+19 says only "at least so large".
inline long double conditionNumber(const Dimension& model) {
  const Matrix matrix = scaledNormalMatrix(model);
  return norm1(matrix) * norm1(inverse(matrix));
}

}  // namespace tavimor::test
