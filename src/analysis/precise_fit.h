#pragma once

#include "analysis/decomposition.h"
#include "analysis/power_transform.h"

namespace tavimor {

/// A number and how far it can be from the true one at most.
struct Bounded {
  Pair value;
  double bound = 0.0;

  double rounded() const { return value.high; }
};

/// One coefficient of the least-squares solution.
struct PreciseCoefficient {
  Bounded solution;
  double spread = 0.0;    // its standard error is this times the standard deviation of a value of the function
  double rounding = 0.0;  // what the rounding of the data to doubles can do to it at most; 0 where none was rounded

  /// No more than the rounding of the data or of this arithmetic: not a number to count digits of.
  bool isNoise() const;
};

/// The least-squares solution in powers of the deviations from some centres.
///   bound = |F|_2 * product of w_k(a_k) * sum over k of (error of the basis + error of w_k(a_k)),
/// where w_k(a)^2 is the diagonal of the inverse normal matrix of axis k.
struct PreciseFit {
  Finding finding;
  PerVariable<std::size_t> terms{1, 1, 1, 1};
  std::vector<PreciseCoefficient> coefficients;  // the first index fastest
  std::size_t points = 0;
  Bounded residualSum;  // of squares
  Bounded totalSum;     // of squares about the mean
  Bounded mean;

  std::size_t termCount() const { return coefficients.size(); }
};

PreciseFit preciseFit(const Decomposition& decomposition, const PerVariable<Pair>& centre,
                      const AnalysisOptions& options = {});

/// The centres that the problem was read with.
PerVariable<Pair> centresOf(const ProblemData& data);

}  // namespace tavimor
