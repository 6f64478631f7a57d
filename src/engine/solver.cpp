#include "engine/solver.h"

#include <algorithm>
#include <cmath>

#include "engine/called_off.h"

namespace tavimor {

namespace {

// The table seen from axis k: for each combination of the outer axes a row per index on k, and in a row the
// neighbouring elements of the inner axes.
struct Slices {
  Slices(Table4& table, Long k)
      : inner(table.stride(k)), rows(table.extent(k)), outer(table.size() / (inner * rows)), elements(table.data()) {}

  double* row(std::size_t block, Long r) const { return elements + (block * rows + r) * inner; }

  std::size_t inner, rows, outer;
  double* elements;
};

Long pivotRow(const Gram& gram, Long column) {
  Long pivot = column;
  double largest = std::fabs(gram(column, column));
  for (Long r = column + 1; r <= gram.degree(); ++r) {
    // Strictly greater: on a tie the upper row stays the pivot. >= would change the last digits of old results.
    if (std::fabs(gram(r, column)) > largest) {
      largest = std::fabs(gram(r, column));
      pivot = r;
    }
  }
  return largest == 0.0 ? -1 : pivot;
}

void exchangeRows(Gram& gram, const Slices& coef, Long a, Long b) {
  for (Long j = 0; j <= gram.degree(); ++j) std::swap(gram(a, j), gram(b, j));
  for (std::size_t block = 0; block < coef.outer; ++block)
    std::swap_ranges(coef.row(block, a), coef.row(block, a) + coef.inner, coef.row(block, b));
}

void subtractRow(Gram& gram, const Slices& coef, Long r, Long column) {
  const double f = gram(r, column) / gram(column, column);
  for (Long j = column; j <= gram.degree(); ++j) gram(r, j) = gram(r, j) - f * gram(column, j);
  for (std::size_t block = 0; block < coef.outer; ++block) {
    double* target = coef.row(block, r);
    const double* source = coef.row(block, column);
    for (std::size_t n = 0; n < coef.inner; ++n) target[n] = target[n] - f * source[n];
  }
}

void eliminate(Gram& gram, const Slices& coef, const FitOptions& options) {
  for (Long column = 0; column < gram.degree(); ++column) {
    const Long pivot = pivotRow(gram, column);
    if (pivot < 0) continue;  // back substitution meets the zero on the diagonal
    if (pivot != column) exchangeRows(gram, coef, column, pivot);
    for (Long r = column + 1; r <= gram.degree(); ++r) {
      endIfCalledOff(options);
      subtractRow(gram, coef, r, column);
    }
  }
}

void substituteRow(const Gram& gram, const Slices& coef, Long r) {
  for (std::size_t block = 0; block < coef.outer; ++block)
    for (std::size_t n = 0; n < coef.inner; ++n) {
      double sum = 0.0;
      for (Long j = r + 1; j <= gram.degree(); ++j) sum = sum + gram(r, j) * coef.row(block, j)[n];
      double& y = coef.row(block, r)[n];
      y = (y - sum) / gram(r, r);
    }
}

}  // namespace

Solution solveAlong(Long k, Gram& gram, Table4& coef, const FitOptions& options) {
  const Slices slices(coef, k);
  eliminate(gram, slices, options);
  for (Long r = gram.degree(); r >= 0; --r) {
    if (gram(r, r) == 0.0) return Solution::Singular;
    endIfCalledOff(options);
    substituteRow(gram, slices, r);
  }
  return Solution::Found;
}

}  // namespace tavimor
