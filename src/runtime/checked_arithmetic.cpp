#include "runtime/checked_arithmetic.h"

#include <cmath>

#include "runtime/run_time_error.h"

namespace tavimor {

double quotient(double dividend, double divisor) {
  if (divisor == 0.0) throw RunTimeError(ErrorNumber::DivisionByZero);
  return dividend / divisor;
}

double squareRoot(double value) {
  if (value < 0.0) throw RunTimeError(ErrorNumber::InvalidCall);
  return std::sqrt(value);
}

double logarithm(double value) {
  if (value <= 0.0) throw RunTimeError(ErrorNumber::InvalidCall);
  return std::log(value);
}

double exponential(double exponent) {
  const double value = std::exp(exponent);
  if (std::isinf(value)) throw RunTimeError(ErrorNumber::Overflow);
  return value;
}

double inRange(double value) {
  if (!std::isfinite(value)) throw RunTimeError(ErrorNumber::Overflow);
  return value;
}

}  // namespace tavimor
