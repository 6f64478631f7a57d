#pragma once

#include <vector>

#include "support/known_coefficients.h"
#include "support/problem.h"

namespace tavimor::test {

inline long double power(long double base, Long exponent) {
  long double result = 1;
  for (Long n = 0; n < exponent; ++n) result *= base;
  return result;
}

/// The term with the exponents j at a point.
inline long double term(const Dimension& model, const PerVariable<Long>& j, const PerVariable<double>& x) {
  long double product = 1;
  for (Long k = 0; k <= model.LastVar; ++k) product *= power(x[k] - static_cast<long double>(model.Centre[k]), j[k]);
  return product;
}

inline std::vector<PerVariable<Long>> allIndices(const PerVariable<Long>& last) {
  std::vector<PerVariable<Long>> indices;
  forEachIndex(last, [&](Long i0, Long i1, Long i2, Long i3) { indices.push_back({i0, i1, i2, i3}); });
  return indices;
}

inline PerVariable<double> gridPoint(const Dimension& model, const PerVariable<Long>& i) {
  return {model.X0[i[0]], model.X1[i[1]], model.X2[i[2]], model.X3[i[3]]};
}

inline double at(const Table4& table, const PerVariable<Long>& i) { return table(i[0], i[1], i[2], i[3]); }

using Matrix = std::vector<std::vector<long double>>;

/// The system of all terms at once, the right-hand side in the last column.
inline Matrix fullNormalEquations(const Dimension& model) {
  const auto terms = allIndices(model.Degree);
  Matrix system(terms.size(), std::vector<long double>(terms.size() + 1));
  for (const auto& i : allIndices(model.LastPoint)) {
    std::vector<long double> values;
    values.reserve(terms.size());
    for (const auto& j : terms) values.push_back(term(model, j, gridPoint(model, i)));
    for (std::size_t a = 0; a < terms.size(); ++a) {
      for (std::size_t b = 0; b < terms.size(); ++b) system[a][b] += values[a] * values[b];
      system[a].back() += values[a] * at(model.F, i);
    }
  }
  return system;
}

/// Makes the leading square of a system diagonal. Gauss and Jordan without exchanges, which a positive definite matrix
/// does not need.
inline void reduceToDiagonal(Matrix& system) {
  for (std::size_t pivot = 0; pivot < system.size(); ++pivot)
    for (std::size_t row = 0; row < system.size(); ++row) {
      if (row == pivot) continue;
      const long double factor = system[row][pivot] / system[pivot][pivot];
      for (std::size_t column = pivot; column < system[row].size(); ++column)
        system[row][column] -= factor * system[pivot][column];
    }
}

/// The coefficients of the fit by another route: the normal equations of all terms at once, in the longest arithmetic.
inline Coefficients solutionOfTheFullSystem(const Dimension& model) {
  Matrix system = fullNormalEquations(model);
  reduceToDiagonal(system);
  Coefficients result;
  const auto terms = allIndices(model.Degree);
  for (std::size_t row = 0; row < system.size(); ++row) result[terms[row]] = system[row].back() / system[row][row];
  return result;
}

}  // namespace tavimor::test
