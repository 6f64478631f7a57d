#pragma once

#include <span>

#include "runtime/long.h"

namespace tavimor {

/// A function that the script language has by itself, all of one number: Abs Atn Cos Exp Fix Int Log Sgn Sin Sqr Tan.
/// Int rounds towards minus infinity, Fix towards zero; Log is the natural logarithm, angles are in radians.
/// Errors: InvalidCall for the root of a negative number, the logarithm of one or of 0; Overflow.
struct Intrinsic {
  const char* name;
  double (*compute)(double x);
};

std::span<const Intrinsic> intrinsics();

/// Round, the one intrinsic function with an optional second argument: x to that many decimals, halves to even.
/// Errors: InvalidCall for fewer than 0 and more than 22 decimals (10^22 is the last exact power of ten).
double roundToDecimals(double x, Long decimals);

}  // namespace tavimor
