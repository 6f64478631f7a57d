#pragma once

#include <string>

#include "engine/fit_options.h"
#include "model/fit.h"
#include "model/problem.h"

namespace tavimor {

/// How a fit ends.
enum class FitEnd {
  Found,      // the fit is there
  Singular,   // the system of a variable has an exact zero on its diagonal
  NoRoom,     // the degree of a variable is not below its number of values: the fitted values find no room
  CalledOff,  // the options' isCalledOff has said so
  Error       // a run-time error that a fit does not go on after
};

/// What stands in the place of a listing where a system is singular.
inline constexpr char kSingularMatrix[] = "YIELDS SINGULAR MATRIX.";

struct FitOutcome {
  FitEnd end = FitEnd::Found;
  Long variable = 0;   // Singular, NoRoom: the variable
  Long ErrNumber = 0;  // the last run-time error that was met, also one after which the fit went on; 0 if none
  std::string detail;  // Error: what is known of it beyond its number
  Fit fit;             // Found: the whole of it. Singular: Coef in the state that the solution has reached.
};

/// Fits the problem by least squares: the right-hand side, the solution along one variable after the other, the fitted
/// values and the statistics. The specifications must have been captured.
/// `earlier` gives the figures that have no value now (see fitStatistics).
/// Errors: none; a run-time error is an outcome. One that is bound to end without room is not worth long work: a degree
/// above 1023, or sums that take seconds, end it then as OutOfMemory at once.
FitOutcome fit(const Problem& problem, const FitOptions& options = {}, const Statistics& earlier = {});

}  // namespace tavimor
