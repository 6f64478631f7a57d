#include "analysis/chebyshev_basis.h"

#include <algorithm>
#include <cmath>

namespace tavimor {

namespace {

// The shares of orthogonal polynomials P_k in each T_n, row n, and the running errors of these numbers.
struct Shares {
  PairMatrix values;
  std::vector<double> errors;

  double magnitude(std::size_t n, std::size_t k) const { return std::fabs(values(n, k).high); }
  double& error(std::size_t n, std::size_t k) { return errors[n * values.columns + k]; }
};

// With t P_k = (P_{k+1} + back_k P_{k-1}) / scale_k.
Shares sharesInChebyshevs(const Recurrence& ofP, double stretch) {
  const std::size_t terms = ofP.size() + 1;
  Shares shares{PairMatrix(terms, terms), std::vector<double>(terms * terms)};
  shares.values(0, 0) = 1.0;
  for (std::size_t n = 0; n + 1 < terms; ++n)
    for (std::size_t k = 0; k <= n + 1; ++k) {
      const double factor = n == 0 ? stretch : 2 * stretch;
      Pair sum;
      double error = 0.0, magnitude = 0.0;
      if (k > 0) {
        const double weight = factor / ofP[k - 1].scale;
        sum = shares.values(n, k - 1) * Pair(weight);
        error = weight * shares.error(n, k - 1);
        magnitude = weight * shares.magnitude(n, k - 1);
      }
      if (k < n) {
        const Pair weight = ofP[k + 1].back * Pair(factor / ofP[k + 1].scale);
        sum = sum + shares.values(n, k + 1) * weight;
        error += std::fabs(weight.high) * shares.error(n, k + 1);
        magnitude += std::fabs(weight.high) * shares.magnitude(n, k + 1);
      }
      if (n > 0) {
        sum = sum - shares.values(n - 1, k);
        error += shares.error(n - 1, k);
        magnitude += shares.magnitude(n - 1, k);
      }
      shares.values(n + 1, k) = sum;
      shares.error(n + 1, k) = error + 4 * kPairError * magnitude;
    }
  return shares;
}

}  // namespace

Recurrence chebyshevRecurrence(std::size_t terms) {
  Recurrence recurrence(terms - 1, RecurrenceStep{0.0, 2.0, 1.0});
  recurrence.front() = {0.0, 1.0, 0.0};
  return recurrence;
}

void fillChebyshevs(const PairSums& sums, std::size_t terms, Places places, Pairs polynomials) {
  const auto polynomial = [&](std::size_t j) { return polynomials + j * kMostDotted; };
  double high[kMostDotted], low[kMostDotted];
  for (std::size_t n = 0; n < kMostDotted; ++n) {
    high[n] = 2 * polynomial(1).high[n];
    low[n] = 2 * polynomial(1).low[n];
  }
  const ConstPairs twice{high, places == Places::Pairs ? low : nullptr};
  for (std::size_t j = 1; j + 1 < terms; ++j)
    sums.advanceChebyshev(twice, polynomial(j), polynomial(j - 1), kMostDotted, polynomial(j + 1));
}

BasisMagnitudes chebyshevMagnitudes(double largestCoordinate, std::size_t terms) {
  BasisMagnitudes magnitudes(terms);
  magnitudes.largestCoordinate = std::max(1.0, largestCoordinate);
  std::vector<double>& largest = magnitudes.largest;
  largest[1] = magnitudes.largestCoordinate;
  for (std::size_t j = 1; j + 1 < terms; ++j) largest[j + 1] = 2 * largest[1] * largest[j] - largest[j - 1];
  return magnitudes;
}

bool isPreciseInChebyshevs(const AxisBasis& basis) {
  const double norm = normOfBasisErrors(basis, chebyshevMagnitudes(1.0, basis.terms));
  return norm / std::sqrt(static_cast<double>(basis.count)) < kMostChebyshevError;
}

GridProducts chebyshevProductsOnGrid(std::size_t count, std::size_t terms, double stretch) {
  Shares shares = sharesInChebyshevs(recurrenceOfSpaced(count, terms), stretch);
  const std::vector<Pair> norms = squaredNormsOfSpaced(count, terms);
  GridProducts grid{PairMatrix(terms, terms), 0.0};
  const double rounding = (5 * static_cast<double>(terms) + 2) * kPairError;  // of a norm, the products and the sum
  for (std::size_t j = 0; j < terms; ++j)
    for (std::size_t k = 0; k <= j; ++k) {
      Pair sum;
      double error = 0.0;
      for (std::size_t i = 0; i <= k; ++i) {
        sum = sum + shares.values(j, i) * shares.values(k, i) * norms[i];
        const double ofJ = shares.magnitude(j, i) + shares.error(j, i), ofK = shares.magnitude(k, i);
        error += (shares.error(j, i) * ofK + shares.error(k, i) * ofJ + rounding * ofJ * ofK) * norms[i].high;
      }
      grid.products(j, k) = grid.products(k, j) = sum;
      grid.error = std::max(grid.error, error);
    }
  return grid;
}

}  // namespace tavimor
