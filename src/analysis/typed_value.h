#pragma once

#include "analysis/pair.h"

namespace tavimor {

/// What the numbers of a problem stand for.
enum class Reading {
  AsTyped,  // the decimals that were typed
  AsStored  // the doubles that were made of them
};

/// The number that a double stands for. Read as typed, a double which its own decimal of 15 significant digits gives
/// back stands for that decimal: 0.1 is a tenth, and not 0.1000000000000000055. Every other double, and one whose
/// magnitude is not between 1E-250 and 1E250, stands for itself.
/// The relative error of the pair is at most kTypedError: it takes up to a dozen products to reach a far power of ten,
/// and the rest is there to be generous.
Pair typedValue(double value);
Pair valueRead(double value, Reading reading);

/// The low part of typedValue, and whether the value is a decimal of 15 digits that its double holds exactly.
double typedLow(double value);
bool isExactDecimal(double value);

constexpr double kTypedError = 256 * kPairError;

/// The middle between two numbers.
Pair middleOf(const Pair& lower, const Pair& upper);

}  // namespace tavimor
