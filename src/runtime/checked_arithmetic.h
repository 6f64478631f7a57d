#pragma once

namespace tavimor {

/// Arithmetic that raises a run-time error where a step has no value.
///
/// | step                                  | error          |
/// |---------------------------------------|----------------|
/// | a divisor of exactly 0                | DivisionByZero |
/// | the root of a number below 0          | InvalidCall    |
/// | the logarithm of 0 or a number below  | InvalidCall    |
/// | an exponential too large for a double | Overflow       |
///
/// The root of -0 is -0. A NaN passes through these four.
double quotient(double dividend, double divisor);
double squareRoot(double value);
double logarithm(double value);
double exponential(double exponent);

/// The value itself where it is finite. Errors: Overflow for an infinity and for a NaN.
double inRange(double value);

}  // namespace tavimor
