#pragma once

#include <optional>
#include <vector>

#include "analysis/pair_sums.h"

namespace tavimor {

/// What the deviations d of values from their grid add to sums over the grid: with ' the derivative, T' = D T,
///   T_j(t + d) = T_j(t) + d T_j'(t) + ..,
/// so that with A = sum of d F T and B = sum of d T T^T,
///   sum of F T     gains  D A,
///   sum of T T^T   gains  D B + (D B)^T.
/// The deviations are so small that the sums need no more than doubles, and that what is left out is next to nothing.

/// The most that a deviation may be times the largest sum of magnitudes in a row of D, (terms - 1)^2.
constexpr double kMostShare = 0x1p-40;

/// The deviations at the two halves of a block of a grid, place by place opposite each other.
struct OppositeDeviations {
  const double *front, *back;
  const double *functionInFront, *functionBehind;
};

/// These sums for one part of an axis, in Chebyshev's polynomials. A polynomial is the same at opposite places or, for
/// odd numbers, the negative: sums with an even one take the sum of both weights, those with an odd one the difference.
/// No derivative has a share of T_q, q = terms - 1. Of the products the sums of T_0 .. T_{q-1} alone and of T_q with
/// each of these are made: they give the sums up to T_{2q-1}, and these all others.
class DeviationSums {
 public:
  explicit DeviationSums(std::size_t terms);

  /// Of a block of kMostDotted places; polynomial j is at j * kMostDotted, and the first one is 1, or 0 behind the end.
  void add(const PairSums& sums, const OppositeDeviations& block, const double* polynomials);
  void add(const DeviationSums& part);

  double largest = 0.0;  // deviation

 private:
  friend class DeviationGains;

  // What the deviations are multiplied with besides each polynomial: nothing, T_q, the function.
  enum Weight : std::size_t { Single, WithLast, WithFunction };

  std::vector<double> totals(Weight weight) const;

  std::size_t last_;          // q
  std::vector<double> sums_;  // kChains of each polynomial, the even ones first, for one weight after the other
};

/// What the sums gain.
class DeviationGains {
 public:
  explicit DeviationGains(const DeviationSums& sums);

  double ofProduct(std::size_t j, std::size_t k) const { return ofProducts_[j * terms_ + k]; }
  double ofFunction(std::size_t j) const { return ofFunction_[j]; }

  /// How far a gain can be off at most, beside the product of the norms of what is multiplied. `addends` is the longest
  /// chain of additions. Nothing where the series does not converge fast enough to tell.
  std::optional<double> error(std::size_t addends) const;

 private:
  std::size_t terms_;
  double largestDeviation_;
  std::vector<double> ofProducts_, ofFunction_;
};

}  // namespace tavimor
