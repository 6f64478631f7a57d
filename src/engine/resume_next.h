#pragma once

#include "runtime/long.h"
#include "runtime/run_time_error.h"

namespace tavimor {

/// Whether a fit goes on after this error: after InvalidCall, Overflow, DivisionByZero and ScriptReported.
bool isResumable(ErrorNumber number);

/// Runs one statement of a fit under its error handler: after a resumable error the next statement follows, whatever
/// the failed one had stored staying as it is, and errNumber keeps the number. Any other run-time error goes on.
template <class Statement>
void resumeNext(Long& errNumber, Statement statement) {
  try {
    statement();
  } catch (const RunTimeError& error) {
    if (!isResumable(error.number())) throw;
    errNumber = static_cast<Long>(error.number());
  }
}

}  // namespace tavimor
