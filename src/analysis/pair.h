#pragma once

#include <cstddef>

namespace tavimor {

/// A number of some 32 digits: the sum of two doubles that is not carried out, |low| <= half a unit in the last place
/// of high.
///
/// The rounding errors of the operations are relative ones, u = 2^-53: at most 3 u^2 for a sum, 5 u^2 for a product,
/// somewhat more for a quotient. Every bound here charges kPairError for each.
/// Range: magnitudes from 2^-900 to 2^900, so that no error term is lost below the smallest double. Beyond that the
/// results are like those of doubles, infinities and NaN included.
/// Sources: Dekker, A floating-point technique for extending the available precision, 1971; Joldes, Muller, Popescu,
/// Tight and rigorous error bounds for basic building blocks of double-word arithmetic, ACM TOMS 44, 2017.
struct Pair {
  double high = 0.0;
  double low = 0.0;

  constexpr Pair() = default;
  constexpr Pair(double value) : high(value) {}  // every double is a pair
  constexpr Pair(double highPart, double lowPart) : high(highPart), low(lowPart) {}
};

constexpr double kUnitRoundoff = 0x1p-53;
constexpr double kPairError = 8 * kUnitRoundoff * kUnitRoundoff;

/// The exact sum; the second form is for |a| >= |b| or a = 0.
inline Pair twoSum(double a, double b) {
  const double sum = a + b;
  const double ofB = sum - a;
  return {sum, (a - (sum - ofB)) + (b - ofB)};
}

inline Pair quickTwoSum(double a, double b) {
  const double sum = a + b;
  return {sum, b - (sum - a)};
}

/// The exact product, by splitting the factors. A fused multiply-add gives the same bits.
Pair twoProduct(double a, double b);

Pair operator+(const Pair& a, const Pair& b);
Pair operator-(const Pair& a);
Pair operator-(const Pair& a, const Pair& b);
Pair operator*(const Pair& a, const Pair& b);
Pair operator/(const Pair& a, const Pair& b);

Pair squareRoot(const Pair& a);  // of a value that is not negative
Pair magnitude(const Pair& a);
Pair scaled(const Pair& a, int exponent);  // a * 2^exponent
Pair power(const Pair& base, std::size_t exponent);

bool operator<(const Pair& a, const Pair& b);
bool isFinite(const Pair& a);

}  // namespace tavimor
