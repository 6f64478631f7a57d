#include "analysis/typed_value.h"

#include <cmath>
#include <optional>

namespace tavimor {

namespace {

constexpr int kExactPower = 22;  // 10^22 is the last power of ten that a double holds exactly
constexpr double kMostDigits = 1e15;
constexpr double kLeast = 1e-250, kMost = 1e250;

double exactPowerOfTen(int exponent) {
  double power = 1.0;
  for (int n = 0; n < exponent; ++n) power *= 10.0;
  return power;
}

Pair powerOfTen(int exponent) {
  if (exponent <= kExactPower) return exactPowerOfTen(exponent);
  return powerOfTen(exponent - kExactPower) * Pair(exactPowerOfTen(kExactPower));
}

Pair timesPowerOfTen(double value, int exponent) {
  return exponent >= 0 ? powerOfTen(exponent) * Pair(value) : Pair(value) / powerOfTen(-exponent);
}

// The decimal digits / power beside the value next to it: their difference is one of numbers that nearly agree.
Pair decimalBeside(double value, double digits, double power) {
  const Pair product = twoProduct(value, power);
  return {value, ((digits - product.high) - product.low) / power};
}

// The decimal that reads back as the value; nothing where there is none.
std::optional<Pair> decimalOf(double value) {
  const double size = std::fabs(value);
  if (!(size >= kLeast && size <= kMost)) return std::nullopt;
  int places = 16 - static_cast<int>(std::floor(std::log10(size)));  // one or two too many
  double digits = kMostDigits;
  while (std::fabs(digits) >= kMostDigits) digits = std::nearbyint(timesPowerOfTen(value, --places).high);
  const bool isExactPower = places > 0 && places <= kExactPower;
  const Pair typed =
      isExactPower ? decimalBeside(value, digits, exactPowerOfTen(places)) : timesPowerOfTen(digits, -places);
  if (typed.high != value || typed.high + typed.low != value) return std::nullopt;
  return typed;
}

}  // namespace

Pair typedValue(double value) { return decimalOf(value).value_or(value); }

double typedLow(double value) { return value == 0.0 ? 0.0 : typedValue(value).low; }

bool isExactDecimal(double value) {
  if (value == 0.0) return true;
  const std::optional<Pair> decimal = decimalOf(value);
  return decimal && decimal->low == 0.0;
}

Pair valueRead(double value, Reading reading) { return reading == Reading::AsTyped ? typedValue(value) : Pair(value); }

Pair middleOf(const Pair& lower, const Pair& upper) { return scaled(lower, -1) + scaled(upper, -1); }

}  // namespace tavimor
