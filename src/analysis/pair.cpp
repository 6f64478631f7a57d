#include "analysis/pair.h"

#include <cmath>

namespace tavimor {

namespace {

// The upper half of a double's digits; the rest is value - upper half.
double upperHalf(double value) {
  constexpr double splitter = 0x1p27 + 1;
  const double product = splitter * value;
  return product - (product - value);
}

}  // namespace

Pair twoProduct(double a, double b) {
  const double product = a * b;
  const double aHigh = upperHalf(a), aLow = a - aHigh;
  const double bHigh = upperHalf(b), bLow = b - bHigh;
  return {product, ((aHigh * bHigh - product) + aHigh * bLow + aLow * bHigh) + aLow * bLow};
}

Pair operator+(const Pair& a, const Pair& b) {
  const Pair high = twoSum(a.high, b.high);
  const Pair low = twoSum(a.low, b.low);
  const Pair sum = quickTwoSum(high.high, high.low + low.high);
  return quickTwoSum(sum.high, sum.low + low.low);
}

Pair operator-(const Pair& a) { return {-a.high, -a.low}; }

Pair operator-(const Pair& a, const Pair& b) { return a + -b; }

Pair operator*(const Pair& a, const Pair& b) {
  const Pair product = twoProduct(a.high, b.high);
  return quickTwoSum(product.high, product.low + (a.high * b.low + a.low * b.high));
}

Pair operator/(const Pair& a, const Pair& b) {
  const double first = a.high / b.high;
  const Pair afterFirst = a - b * first;
  const double second = afterFirst.high / b.high;
  const Pair afterSecond = afterFirst - b * second;
  return quickTwoSum(first, second) + Pair(afterSecond.high / b.high);
}

Pair squareRoot(const Pair& a) {
  if (a.high == 0.0) return {};
  const double root = std::sqrt(a.high);
  const Pair rest = a - twoProduct(root, root);
  return quickTwoSum(root, rest.high / (2 * root));
}

Pair magnitude(const Pair& a) { return a.high < 0.0 ? -a : a; }

Pair scaled(const Pair& a, int exponent) { return {std::ldexp(a.high, exponent), std::ldexp(a.low, exponent)}; }

Pair power(const Pair& base, std::size_t exponent) {
  Pair result = 1.0;
  for (std::size_t n = 0; n < exponent; ++n) result = result * base;
  return result;
}

bool operator<(const Pair& a, const Pair& b) { return a.high < b.high || (a.high == b.high && a.low < b.low); }

bool isFinite(const Pair& a) { return std::isfinite(a.high) && std::isfinite(a.low); }

}  // namespace tavimor
