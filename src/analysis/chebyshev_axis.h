#pragma once

#include <optional>

#include "analysis/axis_parts.h"

namespace tavimor {

/// The sums of a long axis of listed values in Chebyshev's polynomials: all inner products follow from the sums of
/// T_0 .. T_{2q}, q = terms - 1, and those above T_q from the products of T_q with the others.
/// Nothing where the values lie so unevenly that polynomials of their own do better.
/// Errors: OutOfMemory, AnalysisCancelled.
std::optional<LongAxisSums> chebyshevAxisSums(const AxisData& axis, const FunctionValues& function,
                                              const AnalysisOptions& options);

}  // namespace tavimor
