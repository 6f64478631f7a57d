#pragma once

#include <vector>

#include "engine/fit_options.h"
#include "model/problem.h"

namespace tavimor {

/// The largest degree with a normal matrix: 200 MB, and half as much again while it is
/// made. A file of some kilobytes can ask for a larger one, and no double
/// tells the powers of such degrees apart.
inline constexpr Long kMostDegree = 4999;

/// Whether the normal matrix of a degree can be, asked before memory is taken for it.
/// Errors: SubscriptOutOfRange for a degree below 0, OutOfMemory above the largest one.
void requireNormalMatrix(Long degree);

/// The normal matrix of one variable: degree + 1 rows and columns. Errors: as requireNormalMatrix, and OutOfMemory.
class Gram {
 public:
  explicit Gram(Long degree);

  Long degree() const { return degree_; }
  double& operator()(Long row, Long column) { return elements_[place(row, column)]; }
  double* data() { return elements_.data(); }
  double operator()(Long row, Long column) const { return elements_[place(row, column)]; }

 private:
  std::size_t place(Long row, Long column) const {
    return static_cast<std::size_t>(row) * (static_cast<std::size_t>(degree_) + 1) + static_cast<std::size_t>(column);
  }

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
