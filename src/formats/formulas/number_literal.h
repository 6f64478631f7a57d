#pragma once

#include <string>

namespace tavimor {

/// The shortest decimal numeral that brings the same bits back, 17 digits at most: "0.1", "-2.5e-07", "3.0". It always
/// has a point or an exponent, so that no language takes it for a whole number.
std::string decimalLiteral(double value);

/// The same with Fortran's exponent of double precision: "0.1d0", "-2.5d-07".
std::string fortranLiteral(double value);

/// The exact hexadecimal numeral, "0x1.8p+1", for a language whose reader of decimal ones does not round correctly.
std::string hexadecimalLiteral(double value);

}  // namespace tavimor
