#include "analysis/right_digits.h"

#include <algorithm>
#include <cmath>

namespace tavimor {

double rightDigits(double listed, const Bounded& precise) {
  const double size = std::fabs(precise.value.high);
  if (!std::isfinite(listed) || !(precise.bound < size)) return 0.0;
  if (listed == precise.value.high) return kMostDigits;
  const double error = std::fabs((Pair(listed) - precise.value).high) + precise.bound;
  constexpr double ofLogarithm = 1e-12;
  const double digits = -std::log10(error / (size - precise.bound)) - ofLogarithm;
  return std::clamp(digits, 0.0, kMostDigits);
}

int shownDigits(double digits) { return static_cast<int>(std::floor(digits)); }

}  // namespace tavimor
