#pragma once

#include <optional>
#include <vector>

#include "analysis/pair_sums.h"

namespace tavimor {

/// What the deviations d of values from their grid add to sums over the grid: with ' the derivative,
///   P_j(t + d) = P_j(t) + d P_j'(t) + d^2/2 P_j''(t) + ..,   P' = D P,
/// so that with A = sum of d F P and B = sum of d P P^T, and A2, B2 the same with d^2/2 for d,
///   sum of F P     gains  D A + D^2 A2,
///   sum of P P^T   gains  D B + (D B)^T + D^2 B2 + 2 D B2 D^T + (D^2 B2)^T.
/// The deviations are so small that their sums need no more than doubles.

/// The most that a value may lie off its grid, in the coordinate of AxisFrame.
constexpr double kMostDeviation = 0x1p-42;

constexpr std::size_t kOrders = 2;  // of deviations

/// The deviations at the two halves of a block of a grid, place by place opposite each other.
struct OppositeDeviations {
  const double *front, *back;
  const double *functionInFront, *functionBehind;
};

/// These sums for one part of an axis, in Chebyshev's polynomials. A polynomial is the same at opposite places or, for
/// odd numbers, the negative: sums with an even one take the sum of both weights, those with an odd one the difference.
/// Of the products only those of neighbours are summed: they give the sums of T_0 .. T_{2q} alone, q = terms - 1, and
/// these all others.
class DeviationSums {
 public:
  explicit DeviationSums(std::size_t terms);

  /// Of a block of kMostDotted places; polynomial j is at j * kMostDotted, and the first one is 1, or 0 behind the end.
  void add(const PairSums& sums, const OppositeDeviations& block, const double* polynomials);
  void add(const DeviationSums& part);

  double largest = 0.0;  // deviation

 private:
  friend class DeviationGains;

  std::size_t terms_;
  std::vector<double> products_;               // of each polynomial: see PairSums::neighbourDots
  std::vector<double> withFunction_[kOrders];  // the even polynomials first, kChains of each
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
  double largestDeviation_, ofDerivative_ = 0.0;  // the most that a derivative is larger
  std::vector<double> ofProducts_, ofFunction_;
};

}  // namespace tavimor
