#include "analysis/pictures/round_numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>

#include "runtime/number_text.h"

namespace tavimor {

namespace {

// The double nearest to it: not every system's pow is so exact. 0 beyond the range of a double.
double powerOfTen(double exponent) {
  if (!std::isfinite(exponent)) return 0.0;
  const std::string text = "1e" + std::to_string(static_cast<int>(exponent));
  double power = 0.0;
  std::from_chars(text.data(), text.data() + text.size(), power);
  return power;
}

}  // namespace

double roundStep(double lower, double upper, int parts) {
  const double least = (upper / parts - lower / parts);
  const double unit = powerOfTen(std::floor(std::log10(least)));
  for (const double factor : {1.0, 2.0, 5.0})
    if (factor * unit >= least) return factor * unit;
  return 10.0 * unit;
}

std::vector<double> roundNumbersBetween(double lower, double upper, int most) {
  std::vector<double> numbers;
  if (!std::isfinite(lower) || !std::isfinite(upper) || !(lower < upper)) return numbers;
  const double step = roundStep(lower, upper, most);
  if (!std::isnormal(step)) return numbers;
  const double first = std::floor(lower / step);
  if (first + 1.0 == first) return numbers;  // the interval is narrower than the digits of its ends can tell
  for (int n = 0; std::ssize(numbers) < most; ++n) {
    const double number = (first + n) * step;
    if (!(number < upper)) break;
    if (number > lower) numbers.push_back(number);
  }
  return numbers;
}

int axisExponent(double lower, double upper) {
  constexpr int kLargest = 200, kSmallest = -200;
  const double magnitude = std::max(std::fabs(lower), std::fabs(upper));
  if (magnitude == 0.0 || !std::isfinite(magnitude)) return 0;
  const int exponent = static_cast<int>(std::floor(std::log10(magnitude)));
  return exponent > kLargest || exponent < kSmallest ? exponent : 0;
}

double dividedByPower(double value, int exponent) {
  const int half = exponent / 2;  // the whole power may be beyond the range of a double
  return value / powerOfTen(half) / powerOfTen(exponent - half);
}

std::string shortNumber(double value) {
  if (!std::isfinite(value)) return numberText(value);
  char text[32];
  const auto end = std::to_chars(text, text + sizeof text, value, std::chars_format::scientific, 5);
  double rounded = value;
  std::from_chars(text, end.ptr, rounded);
  return numberText(rounded);
}

}  // namespace tavimor
