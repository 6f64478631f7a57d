#include "analysis/function_values.h"

#include <algorithm>
#include <cmath>

namespace tavimor {

namespace {

constexpr int kMostExponent = 300;
constexpr double kNextToNothing = 0x1p-500;  // what is smaller could lose its error terms below the smallest double

}  // namespace

FunctionValues functionValues(const Table4& table, Reading reading, const PairSums& sums) {
  FunctionValues function;
  function.values = table.data();
  function.count = table.size();
  function.reading = reading;
  const Magnitudes found = sums.magnitudes(table.data(), table.size());
  function.allFinite = found.allFinite;
  if (!found.allFinite || found.largest == 0.0) return function;
  const int exponent = std::ilogb(found.largest);
  if (std::abs(exponent) > kMostExponent) function.exponent = exponent;
  function.asTheyAre = function.exponent == 0 && found.smallest >= kNextToNothing;
  return function;
}

bool finishBlock(const FunctionValues& function, const PairSums& sums, Pairs block, std::size_t count) {
  bool exact = false;
  if (function.reading == Reading::AsTyped)
    exact = sums.typedLows(block.high, count, block.low);
  else
    std::fill_n(block.low, count, 0.0);
  if (function.asTheyAre) return exact;
  for (std::size_t n = 0; n < count; ++n) {
    block.high[n] = std::ldexp(block.high[n], -function.exponent);
    block.low[n] = std::ldexp(block.low[n], -function.exponent);
    if (std::fabs(block.high[n]) < kNextToNothing) block.high[n] = block.low[n] = 0.0;
  }
  return exact;
}

}  // namespace tavimor
