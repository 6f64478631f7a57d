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
/// The relative error of the pair is at most kTypedRounding: docs/numerics.md counts the roundings. From 1E-8 to 1E37
/// it is 2 u^2, that of the low part alone.
Pair typedValue(double value);
Pair valueRead(double value, Reading reading);

/// The low part of typedValue, and whether the value is a decimal of 15 digits that its double holds exactly.
double typedLow(double value);
bool isExactDecimal(double value);

constexpr double kTypedRounding = 12 * kPairError;  // 11 products and a quotient, to reach 10^264

/// What bounds charge for it. Beside bounds that were met more closely a mistake in their formulas would not show.
constexpr double kTypedError = 8 * kTypedRounding;

/// The middle between two numbers.
Pair middleOf(const Pair& lower, const Pair& upper);

}  // namespace tavimor
