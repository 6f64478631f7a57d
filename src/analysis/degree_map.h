#pragma once

#include "analysis/inference.h"

namespace tavimor {

/// One combination of degrees and how well it would fit.
struct DegreeCombination {
  PerVariable<Long> degrees{};
  FitStatistics statistics;
  double predictedDigits = 0.0;  // that the fixed order will have about the centres
  bool recommended = false;
  bool beaten = false;  // another combination has no more terms and no larger s, and less of one
};

/// All combinations up to the degrees of a decomposition, the first variable's fastest: from the squares of its
/// numbers, summed up along each axis, with no further pass over the data.
/// Recommended is the least BIC or, where some combination reaches the rounding of the data, the smallest that does.
std::vector<DegreeCombination> degreeMap(const ProblemData& data, const Decomposition& decomposition,
                                         const PerVariable<Pair>& centre, const AnalysisOptions& options = {});

}  // namespace tavimor
