#pragma once

#include <optional>

#include "analysis/decomposition.h"

namespace tavimor {

/// What a pass over the residuals r and the leverages h of all grid points tells.
///   r = value of the function - precise estimate,   h = product over the axes of |L^-1 P|^2.
///   PRESS = sum of (r / (1 - h))^2: the squares of the errors at each point of a fit without that point.
/// Source: Cook and Weisberg, Residuals and Influence in Regression, 1982.
struct GridResiduals {
  std::optional<double> press;  // nothing where a leverage is 1
  double largest = 0.0;         // of the residuals' magnitudes, with the sign
  PerVariable<Long> largestAt{};
  double largestLeverage = 0.0;
  PerVariable<Long> largestLeverageAt{};
};

/// Errors: OutOfMemory, AnalysisCancelled.
GridResiduals gridResiduals(const ProblemData& data, const Decomposition& decomposition,
                            const AnalysisOptions& options = {});

}  // namespace tavimor
