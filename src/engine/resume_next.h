#pragma once

#include "model/Dimension.h"
#include "runtime/run_time_error.h"

namespace tavimor {

/// Runs one statement of a fit under its error handler: after InvalidCall, Overflow, DivisionByZero and ScriptReported
/// the next statement follows, whatever the failed one had stored staying as it is. ErrNumber keeps the number.
/// Any other run-time error goes on and ends the fit.
template <class Statement>
void resumeNext(Dimension& model, Statement statement);

bool isResumable(ErrorNumber number);

template <class Statement>
void resumeNext(Dimension& model, Statement statement) {
  try {
    statement();
  } catch (const RunTimeError& error) {
    if (!isResumable(error.number())) throw;
    model.ErrNumber = static_cast<Long>(error.number());
  }
}

}  // namespace tavimor
