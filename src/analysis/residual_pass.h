#pragma once

#include <functional>

#include "analysis/decomposition.h"

namespace tavimor {

/// 1 - leverage below this: the leverage is 1 as far as can be told.
inline constexpr double kLeverageOfOne = 1e-20;

/// The residual of a grid point times 2^-exponent of the decomposition, its leverage, and the point.
using VisitResidual = std::function<void(const Pair& residual, const Pair& leverage, const PerVariable<Long>& at)>;

/// Visits all grid points once.
///   residual = value of the function - precise estimate,   leverage = product over the axes of |L^-1 P|^2.
/// Source: Cook and Weisberg, Residuals and Influence in Regression, 1982.
/// Errors: OutOfMemory, AnalysisCancelled.
void forEachResidual(const ProblemData& data, const Decomposition& decomposition, const AnalysisOptions& options,
                     const VisitResidual& visit);

/// The residuals of all grid points, shaped like the function. Errors: as above.
Table4 residualTable(const ProblemData& data, const Decomposition& decomposition, const AnalysisOptions& options = {});

}  // namespace tavimor
