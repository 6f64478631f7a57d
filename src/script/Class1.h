#pragma once

#include "runtime/long.h"

namespace tavimor {

/// The mathematical functions that the script language lacks, in the forms
///   Asin   arctan(x / sqrt(1 - x^2)); halfpi at 1, -halfpi at -1
///   Acos   halfpi - arctan(x / sqrt(1 - x^2)); 0 at 1, 2 halfpi at -1
///   Sinh   (e^x - e^-x) 0.5                     Asinh  ln(x + sqrt(x^2 + 1))
///   Cosh   (e^x + e^-x) 0.5                     Acosh  ln(x + sqrt(x^2 - 1))
///   Tanh   1 + (-2 e^-x) / (e^-x + e^x)         Atanh  ln((1 + x) / (1 - x)) 0.5
/// Units:  angles in radians.
/// Errors: none leaves a function. Where a step fails the function returns 0 and writes the number of the run-time
///         error into ierr and into the owner's ierr; a success leaves both as they are.
///         5: root of a negative number, logarithm of one or of 0; 6: overflow; 11: division by zero.
/// Note:   Asin and Acos rely on halfpi, which a script sets; until then it is 0, and so are their end values.
class Class1 {
 public:
  /// `ownerIerr` is the second place where the number of an error goes; it outlives this object.
  explicit Class1(Long& ownerIerr) : ownerIerr_(ownerIerr) {}

  double Asin(double x);
  double Acos(double x);
  double Sinh(double x);
  double Cosh(double x);
  double Tanh(double x);
  double Asinh(double x);
  double Acosh(double x);
  double Atanh(double x);

  double pi = 0.0, halfpi = 0.0, e = 0.0;
  Long ierr = 0;  // the number of the last error

 private:
  template <class Formula>
  double trapped(Formula formula);

  Long& ownerIerr_;
};

}  // namespace tavimor
