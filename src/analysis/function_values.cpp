#include "analysis/function_values.h"

#include <algorithm>
#include <cmath>

#include "analysis/low_parts.h"

namespace tavimor {

namespace {

constexpr int kMostExponent = 300;
constexpr double kNextToNothing = 0x1p-500;  // what is smaller could lose its error terms below the smallest double

// 0 stands for no magnitude.
double smallerOf(double a, double b) { return a == 0.0 || (b != 0.0 && b < a) ? b : a; }

SeenValues seenOf(const TypedValues& typed, const PairSums& sums, const double* values, std::size_t count) {
  return {typed.exact, typed.ordinary ? Magnitudes{true, 1.0, 1.0} : sums.magnitudes(values, count)};
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

ReadValues readValues(const FunctionValues& function, const PairSums& sums, const double* values, std::size_t count,
                      Pairs room) {
  const SeenValues seen = seenOf(lowParts(function.reading, sums, values, count, room.low), sums, values, count);
  if (function.asTheyAre) return {{values, room.low}, seen};
  for (std::size_t n = 0; n < count; ++n) {
    room.high[n] = std::ldexp(values[n], -function.exponent);
    room.low[n] = std::ldexp(room.low[n], -function.exponent);
    if (std::fabs(room.high[n]) < kNextToNothing) room.high[n] = room.low[n] = 0.0;
  }
  return {room, seen};
}

SeenValues readTypedRows(const PairSums& sums, const double* from, std::span<const std::size_t> rows,
                         std::size_t stride, std::size_t lanes, Pairs room) {
  const TypedValues typed = sums.typedRows(from, rows.data(), rows.size(), stride, lanes, room);
  return seenOf(typed, sums, room.high, rows.size() * lanes);
}

}  // namespace tavimor
