#pragma once

#include "analysis/axis_basis.h"
#include "analysis/axis_data.h"

namespace tavimor {

/// Whether the data determine a fit, and whether this arithmetic can tell it.
enum class Verdict {
  Exact,          // the least-squares solution is known to the digits that the bounds state
  NotCertified,   // it is not known well enough
  NotDetermined,  // a variable has no more different values than its degree: exactly so
  NotFinite       // a number of the data is infinite or none
};

/// Why there is no exact solution.
enum class Obstacle {
  None,
  FewDifferentValues,  // of `variable`: `found`, with degree `degree`
  DegreeTooHigh,       // of `variable`, for any arithmetic of this kind
  ValuesTooUneven,     // of `variable`
  ValueNotFinite,      // of `variable`
  FunctionNotFinite,
  CoefficientsTooLarge  // for a double
};

struct Finding {
  Verdict verdict = Verdict::Exact;
  Obstacle obstacle = Obstacle::None;
  Long variable = 0;
  std::size_t found = 0;  // different values
};

constexpr std::size_t kMostTerms = 1024;  // of one axis

/// A function in the orthonormal basis of its grid: everything else is derived from it.
///   F 2^-exponent = sum over the terms of z(j) * product of the orthonormal functions + what no term reaches.
/// The fit of lower degrees is the leading block of z, and its residual sum larger by the squares left out.
/// Source: Björck, Numerical Methods for Least Squares Problems, 1996, ch. 8 (tensor-product problems).
struct Decomposition {
  Finding finding;  // where the verdict is not Exact the rest is not filled
  PerVariable<AxisBasis> axis;
  PairTable z;
  Pair sumOfSquares;  // of F 2^-exponent
  int exponent = 0;
  std::size_t points = 0;
  bool exactData = false;  // every number of the data is a double exactly, so that none was rounded

  double error() const;           // of z, at most, beside the norm of F 2^-exponent
  double normOfFunction() const;  // of F 2^-exponent
};

/// Decomposes the function of a problem. One pass over its data.
/// Errors: OutOfMemory, AnalysisCancelled.
Decomposition decompose(const ProblemData& data, const AnalysisOptions& options = {});

/// The decomposition for lower degrees: its leading block.
Decomposition withTerms(const Decomposition& decomposition, const PerVariable<std::size_t>& terms);

}  // namespace tavimor
