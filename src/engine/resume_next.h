#pragma once

#include "model/Dimension.h"
#include "runtime/run_time_error.h"

namespace tavimor {

/// Division and square root that raise a run-time error where they have no value: DivisionByZero for a divisor of
/// exactly 0, InvalidCall for the root of a number below 0. The root of -0 is -0, that of a NaN a NaN.
double quotient(double dividend, double divisor);
double squareRoot(double value);

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
