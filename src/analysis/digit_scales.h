#pragma once

namespace tavimor {

/// Powers of ten that bring a double to a whole number of 15 digits, by the eleven bits of its exponent: the first one
/// gives at least 1E14 and, for the larger doubles of that exponent, 1E15 or more; then it is the second one. 0 where a
/// power is no double.
struct DigitScales {
  double first[2048], second[2048];
};

extern const DigitScales kDigitScales;

}  // namespace tavimor
