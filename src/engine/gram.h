#pragma once

#include <vector>

#include "engine/fit_options.h"
#include "model/problem.h"

namespace tavimor {

/// The normal matrix of one variable: degree + 1 rows and columns.
/// Errors: OutOfMemory above kLargestDegree. From there on the sums of powers are 0 or infinite for any deviation that
/// is not close to 1, and a few bytes of a file could ask for hours of elimination.
class Gram {
 public:
  static constexpr Long kLargestDegree = 1023;

  explicit Gram(Long degree);

  Long degree() const { return degree_; }
  double& operator()(Long row, Long column) { return elements_[row * (degree_ + 1) + column]; }
  double* data() { return elements_.data(); }
  double operator()(Long row, Long column) const { return elements_[row * (degree_ + 1) + column]; }

 private:
  Long degree_;
  std::vector<double> elements_;
};

/// The normal matrix of variable k:
///   gram(a,b) = sum over the values of d^(a+b),   d = value - Centre[k].
/// Each power is d^a squared (d^a by repeated multiplication) and then multiplied by d again and again, and each sum
/// is one chain over the values in their order.
/// The matrix of the whole fit is the Kronecker product of those of its variables, which is never formed.
/// Source: Björck, Numerical Methods for Least Squares Problems, 1996, ch. 8 (tensor-product problems).
Gram normalMatrix(const Problem& problem, Long k, const FitOptions& options = {});

}  // namespace tavimor
