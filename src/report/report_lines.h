#pragma once

#include "model/fit.h"
#include "model/problem.h"
#include "runtime/line_sink.h"

namespace tavimor {

/// The specification block of variable k: an empty line, name, degree, number of values, interval and centre. Numbers
/// stand as printedNumber has them.
void variableLines(const Problem& problem, Long k, const LineSink& print);

/// The data: the function value at every grid point, variable 3 outermost and variable 0 innermost, with a header
/// line for each value of an outer variable that has more than one.
///
/// The third variable's loop runs to the fourth's last value index. Kept on purpose: of three variables only the first
/// value of the third is printed (ReportLines.ThreeVariablesPrintOnlyTheFirstValueOfTheThird), and where the fourth has
/// more values than the third the loop leaves the list.
/// Errors: SubscriptOutOfRange there, after the lines before it were printed.
void dataLines(const Problem& problem, const LineSink& print);

/// The printed report: the specification blocks, the results where there is a fit, and the data.
/// The specifications must have been captured. Errors: as dataLines.
void reportLines(const Problem& problem, const Fit& fit, const LineSink& print);

}  // namespace tavimor
