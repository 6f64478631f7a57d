#include "analysis/axis_symmetry.h"

#include <algorithm>
#include <cmath>

namespace tavimor {

namespace {

constexpr double kNearlySymmetric = 0x1p-20;  // so little keeps polynomials without shifts nearly orthogonal

Pair at(ConstPairs t, std::size_t i) { return {t.high[i], t.low[i]}; }

void put(Pairs t, std::size_t i, const Pair& value) {
  t.high[i] = value.high;
  t.low[i] = value.low;
}

// How far two coordinates have to be moved.
double asymmetry(const Pair& a, const Pair& b) { return std::fabs((a + b).high) / 2; }

}  // namespace

Mirrored mirrored(Pairs t, std::size_t count, double most) {
  Mirrored result;
  double farthest = 0.0;
  for (std::size_t i = 0; i < count / 2; ++i) {
    const double distance = asymmetry(at(t, i), at(t, count - 1 - i));
    if (!(distance <= kNearlySymmetric)) return {};
    if (!(distance <= most)) continue;
    result.values.push_back(i);
    farthest = std::max(farthest, distance);
  }
  if (result.values.size() < count / 4) return {};
  if (farthest == 0.0) return result;
  for (const std::size_t i : result.values) {
    const Pair half = scaled(at(t, i) - at(t, count - 1 - i), -1);
    put(t, i, half);
    put(t, count - 1 - i, -half);
  }
  result.moved = farthest + kPairError;
  return result;
}

}  // namespace tavimor
