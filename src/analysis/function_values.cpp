#include "analysis/function_values.h"

#include <algorithm>
#include <cmath>

namespace tavimor {

namespace {

constexpr int kMostExponent = 300;
constexpr double kNextToNothing = 0x1p-500;  // what is smaller could lose its error terms below the smallest double

double smallerOf(double a, double b) { return a == 0.0 || (b != 0.0 && b < a) ? b : a; }

SeenValues makeLows(const FunctionValues& function, const PairSums& sums, Pairs block, std::size_t count) {
  if (function.reading == Reading::AsStored) {
    std::fill_n(block.low, count, 0.0);
    return {false, sums.magnitudes(block.high, count)};
  }
  const TypedValues typed = sums.typedLows(block.high, count, block.low);
  return {typed.exact, typed.ordinary ? Magnitudes{true, 1.0, 1.0} : sums.magnitudes(block.high, count)};
}

}  // namespace

void SeenValues::add(const SeenValues& others) {
  exact = exact && others.exact;
  magnitudes.allFinite = magnitudes.allFinite && others.magnitudes.allFinite;
  magnitudes.largest = std::max(magnitudes.largest, others.magnitudes.largest);
  magnitudes.smallest = smallerOf(magnitudes.smallest, others.magnitudes.smallest);
}

FunctionValues functionValues(const Table4& table, Reading reading) { return {table.data(), reading}; }

FunctionValues functionValues(const Table4& table, Reading reading, const Magnitudes& magnitudes) {
  FunctionValues function = functionValues(table, reading);
  if (!magnitudes.allFinite || magnitudes.largest == 0.0) return function;
  const int exponent = std::ilogb(magnitudes.largest);
  if (std::abs(exponent) > kMostExponent) function.exponent = exponent;
  function.asTheyAre = function.exponent == 0 && magnitudes.smallest >= kNextToNothing;
  return function;
}

SeenValues finishBlock(const FunctionValues& function, const PairSums& sums, Pairs block, std::size_t count) {
  const SeenValues seen = makeLows(function, sums, block, count);
  if (function.asTheyAre) return seen;
  for (std::size_t n = 0; n < count; ++n) {
    block.high[n] = std::ldexp(block.high[n], -function.exponent);
    block.low[n] = std::ldexp(block.low[n], -function.exponent);
    if (std::fabs(block.high[n]) < kNextToNothing) block.high[n] = block.low[n] = 0.0;
  }
  return seen;
}

}  // namespace tavimor
