#pragma once

#include <span>
#include <vector>

#include "analysis/decomposition.h"
#include "model/problem.h"

namespace tavimor {

/// A fitted polynomial that is asked at many points: the terms of each variable are evaluated apart, and a variable
/// that is held at a value is summed out once.
///   value = 2^exponent * sum over j of table(j0,j1,j2,j3) * product of term_k(jk, xk)
/// The terms of a variable are the powers of its deviation (a listed fit) or the polynomials of its basis (the exact
/// solution). In doubles, for the eye: the bits are not those of valueAt.
class FittedFunction {
 public:
  static FittedFunction listed(const Problem& problem, const Table4& Coef);

  /// Refers to the decomposition.
  static FittedFunction exact(const Decomposition& decomposition);

  /// The function of the other variables where variable k has the value x.
  FittedFunction heldAt(Long k, double x) const;

  /// Its values along variable k, or over variables k and l: those of the first y, then those of the second.
  /// All other variables must be held.
  std::vector<double> along(Long k, std::span<const double> x) const;
  std::vector<double> over(Long k, std::span<const double> x, Long l, std::span<const double> y) const;

 private:
  struct AxisTerms {
    std::size_t count = 1;
    double centre = 0.0;               // of powers
    const AxisBasis* basis = nullptr;  // null for powers

    std::vector<double> at(double x) const;
  };

  std::size_t stride(Long k) const;
  std::vector<double> contracted(Long k, const std::vector<double>& terms) const;
  void combineTerms(Long k, const PairMatrix& inverse);

  PerVariable<AxisTerms> axis_;
  std::vector<double> table_;  // the first index fastest
  int exponent_ = 0;
};

}  // namespace tavimor
