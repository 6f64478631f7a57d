#pragma once

#include <optional>

#include "analysis/axis_parts.h"

namespace tavimor {

/// The sums of a long axis whose values are equally spaced, or are but for their last digits as a list of decimals is.
/// The polynomials are Chebyshev's, whose inner products over a grid are known, or for high degrees the discrete
/// Chebyshev polynomials of the grid; two values that lie opposite each other share the work. What the deviations of
/// listed values add is in deviation_sums.h.
/// Nothing where the values lie on no grid, or are listed and the degree is too high.
/// Errors: OutOfMemory, AnalysisCancelled.
std::optional<LongAxisSums> gridAxisSums(const AxisData& axis, const FunctionValues& function,
                                         const AnalysisOptions& options);

}  // namespace tavimor
