#pragma once

#include <string>

#include "engine/compute_options.h"
#include "report/results_text.h"

namespace tavimor {

/// Runs the whole fit: the equally spaced values, the right-hand side, the solution along one variable after the
/// other, the fitted values and the statistics. The specifications must have been captured.
///
/// Signals: FitDone, and the single item "YIELDS SINGULAR MATRIX." for `addItem` where a variable's system has an
/// exact zero on its diagonal. Any other failure is silent: FitDone stays false and ErrNumber holds the number.
/// Errors: none, but for one in regenerating the values, which is not the fit's to handle.
void Compute(Dimension& model, const LineSink& addItem, const ComputeOptions& options = {});

/// Why the last Compute gave no fit although no system was singular; for people.
std::string reasonForNoFit(const Dimension& model);

}  // namespace tavimor
