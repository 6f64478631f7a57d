#include "engine/resume_next.h"

#include <cmath>

namespace tavimor {

double quotient(double dividend, double divisor) {
  if (divisor == 0.0) throw RunTimeError(ErrorNumber::DivisionByZero);
  return dividend / divisor;
}

double squareRoot(double value) {
  if (value < 0.0) throw RunTimeError(ErrorNumber::InvalidCall);
  return std::sqrt(value);
}

bool isResumable(ErrorNumber number) {
  return number == ErrorNumber::InvalidCall || number == ErrorNumber::Overflow ||
         number == ErrorNumber::DivisionByZero || number == ErrorNumber::ScriptReported;
}

}  // namespace tavimor
