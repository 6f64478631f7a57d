#pragma once

#include <memory>
#include <optional>
#include <string>

#include "analysis/analysis.h"
#include "analysis/pictures/fitted_function.h"

namespace tavimor {

/// The fit that pictures show: the exact solution where it is known, and else the listed one. May be read by any number
/// of threads.
struct ShownFit {
  std::shared_ptr<const Analysis> analysis;
  std::optional<FittedFunction> exact, listed;  // listed: where all its coefficients are finite
  std::optional<double> reach;                  // half the width of an estimate's interval is this times its spread
  Table4 residual;                              // given - fitted at each grid point; where there is a fit

  const Problem& problem() const { return analysis->problem(); }
  bool hasFit() const { return exact || listed; }
  const FittedFunction& function() const { return exact ? *exact : *listed; }

  bool residualsAreZero = false;  // they are no more than rounding
};

/// Errors: OutOfMemory, AnalysisCancelled.
std::shared_ptr<const ShownFit> shownFit(std::shared_ptr<const Analysis> analysis, const AnalysisOptions& options = {});

/// Why there is nothing to show, in a sentence; empty where there is a fit.
std::string noFitText(const ShownFit& fit);

}  // namespace tavimor
