#pragma once

#include "analysis/precise_fit.h"

namespace tavimor {

constexpr double kMostDigits = 15.0;

/// How many digits of a listed number are right, never too many: with c the precise value and b its bound,
///   -log10((|listed - c| + b) / (|c| - b)),   from 0 to 15.
/// 15 where the listed number is the double nearest to c; 0 where it is not finite or c cannot be told from 0.
double rightDigits(double listed, const Bounded& precise);

/// As a whole number for display: rounded down, so that no library's logarithm shows in it.
int shownDigits(double digits);

}  // namespace tavimor
