#pragma once

#include <optional>

#include "analysis/axis_parts.h"

namespace tavimor {

/// The sums of a long axis of listed values in Chebyshev's polynomials,
///   T_0 = 1,   T_1 = t,   T_{j+1} = 2 t T_j - T_{j-1},
/// whose products are sums of others, T_j T_k = (T_{j+k} + T_{|j-k|}) / 2: all inner products follow from the sums of
/// T_0 .. T_{2q}, q = terms - 1, and those above T_q from the products of T_q with the others.
/// Nothing where the values lie so unevenly that polynomials of their own do better.
/// Errors: OutOfMemory, AnalysisCancelled.
/// Source: Mason, Handscomb, Chebyshev Polynomials, 2003, 2.4.
std::optional<LongAxisSums> chebyshevAxisSums(const AxisData& axis, const FunctionValues& function,
                                              const AnalysisOptions& options);

}  // namespace tavimor
