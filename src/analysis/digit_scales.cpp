#include "analysis/digit_scales.h"

namespace tavimor {

namespace {

constexpr int kExponentOfOne = 1023;
constexpr int kMostPlaces = 22;  // 10^22 is the last power of ten that a double holds exactly
constexpr int kFarthest = 64;    // beyond 2^-64 .. 2^64 there is no such power, on one side or the other

constexpr double powerOfTwo(int exponent) {
  double power = 1.0;
  for (int e = 0; e < exponent; ++e) power *= 2.0;
  for (int e = 0; e > exponent; --e) power *= 0.5;
  return power;
}

constexpr DigitScales digitScales() {
  DigitScales scales{};
  scales.first[0] = scales.second[0] = 1.0;  // of zero, and of what is next to it
  for (int exponent = -kFarthest; exponent < kFarthest; ++exponent) {
    const double size = powerOfTwo(exponent);
    double power = 1.0, before = 0.0;
    int places = 0;
    for (; size * power < 1e14 && places <= kMostPlaces; ++places) {
      before = power;
      power *= 10.0;
    }
    if (places > kMostPlaces || size * power >= 1e15) continue;
    scales.first[exponent + kExponentOfOne] = power;
    scales.second[exponent + kExponentOfOne] = before;
  }
  return scales;
}

}  // namespace

constexpr DigitScales kDigitScales = digitScales();

}  // namespace tavimor
