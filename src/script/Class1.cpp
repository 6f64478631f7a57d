#include "script/Class1.h"

#include <cmath>

#include "runtime/checked_arithmetic.h"
#include "runtime/run_time_error.h"

namespace tavimor {

namespace {

// A comparison as a number, so that a formula can do without branches: -1 where it holds, 0 where it does not.
double asNumber(bool holds) { return holds ? -1.0 : 0.0; }

// arctan(x / sqrt(1 - x^2)); at -1 and 1 the root is taken of 1 instead, and the caller's factor drops the result.
double arcTerm(double x, double inside) { return std::atan(quotient(x, squareRoot(inRange(x * (x * inside)) + 1.0))); }

double atTheEnds(double x) { return asNumber(x == 1.0) - asNumber(x == -1.0); }

}  // namespace

template <class Formula>
double Class1::trapped(Formula formula) {
  try {
    return inRange(formula());
  } catch (const RunTimeError& error) {
    ierr = ownerIerr_ = static_cast<Long>(error.number());
    return 0.0;
  }
}

double Class1::Asin(double x) {
  return trapped([&] {
    const double inside = asNumber(std::fabs(x) != 1.0);
    return -inside * arcTerm(x, inside) - halfpi * atTheEnds(x);
  });
}

double Class1::Acos(double x) {
  return trapped([&] {
    const double inside = asNumber(std::fabs(x) != 1.0);
    return halfpi + inside * arcTerm(x, inside) + halfpi * atTheEnds(x);
  });
}

double Class1::Sinh(double x) {
  return trapped([&] { return (exponential(x) - exponential(-x)) * 0.5; });
}

double Class1::Cosh(double x) {
  return trapped([&] { return inRange(exponential(x) + exponential(-x)) * 0.5; });
}

double Class1::Tanh(double x) {
  return trapped([&] { return 1.0 + quotient(-2.0 * exponential(-x), exponential(-x) + exponential(x)); });
}

double Class1::Asinh(double x) {
  return trapped([&] { return logarithm(x + squareRoot(inRange(x * x) + 1.0)); });
}

double Class1::Acosh(double x) {
  return trapped([&] { return logarithm(x + squareRoot(inRange(x * x) - 1.0)); });
}

double Class1::Atanh(double x) {
  return trapped([&] { return logarithm(quotient(1.0 + x, 1.0 - x)) * 0.5; });
}

}  // namespace tavimor
