#pragma once

#include "engine/fit.h"
#include "model/Dimension.h"
#include "runtime/line_sink.h"

namespace tavimor {

/// Regenerates the equally spaced values and fits the problem of the model, in the model. The specifications must have
/// been captured.
///
/// Signals: FitDone, and the single item "YIELDS SINGULAR MATRIX." for `addItem` where a variable's system has an
/// exact zero on its diagonal. Any other failure is silent: FitDone stays false and ErrNumber holds the number.
/// Errors: none, but for one in regenerating the values, which is not the fit's to handle.
void Compute(Dimension& model, const LineSink& addItem, const FitOptions& options = {});

/// The parts of Compute, for who runs the fit elsewhere: what comes before it, and what becomes of its outcome. Between
/// them nobody may change the problem.
void beginFit(Dimension& model);
void takeOutcome(Dimension& model, FitOutcome outcome, const LineSink& addItem);

/// Sets the estimate S3 to the value of the fit at the point whose offsets t[k] = x[k] - Centre[k] the caller has set.
/// Without a fit nothing is computed and S3 keeps the earlier estimate. Leaves I0 to I3 where the loops over the terms
/// end. Errors: Overflow, as valueAt; S3 keeps the earlier estimate then.
void Evaluate(Dimension& model);

}  // namespace tavimor
