#include "analysis/axis_frame.h"

#include <algorithm>
#include <cmath>

#include "analysis/low_parts.h"

namespace tavimor {

namespace {

constexpr int kLargestExponent = 900;

// The exponent of the smallest power of two that is at least the value.
int exponentAbove(double value) {
  int exponent = 0;
  return std::frexp(value, &exponent) == 0.5 ? exponent - 1 : exponent;
}

AxisFrame frameOfSpaced(const AxisData& axis) {
  AxisFrame frame;
  frame.largestValue = std::max(std::fabs(axis.lower.high), std::fabs(axis.upper.high));
  frame.middle = middleOf(axis.lower, axis.upper);
  const double steps = static_cast<double>(axis.count - 1);
  const int bits = exponentAbove(steps);
  const Pair width = axis.upper - axis.lower;
  int widthExponent = 0;
  std::frexp(width.high, &widthExponent);
  frame.scale = Pair(std::ldexp(steps, -bits)) / scaled(width, -widthExponent);
  frame.exponent = 1 - widthExponent;
  frame.unit = std::ldexp(1.0, -bits);
  frame.scaleError = 2 * (kTypedError + kPairError) * frame.largestValue / std::fabs(width.high) + 2 * kPairError;
  return frame;
}

AxisFrame frameOfListed(const AxisData& axis) {
  AxisFrame frame;
  const auto [least, most] = axis.range;
  const double halfWidth = most / 2 - least / 2;
  frame.largestValue = std::max(std::fabs(least), std::fabs(most));
  // A double, so that differences with doubles are exact. Of decimals the one next to theirs: most symmetric lists have
  // symmetric coordinates then.
  frame.middle = middleOf(valueRead(least, axis.reading), valueRead(most, axis.reading)).high;
  frame.halfWidth = halfWidth;
  if (halfWidth == 0.0) return frame;
  frame.exponent = -exponentAbove(halfWidth);
  // A rounded middle may leave an end a little beyond 1.
  if (axis.reading == Reading::AsTyped)
    frame.coordinateError = (kTypedError + kPairError) * std::ldexp(frame.largestValue, frame.exponent);
  return frame;
}

// The factor has so many digits that its products with whole numbers up to `steps` are doubles.
AxisFrame stretchedGrid(const AxisFrame& frame, double steps) {
  AxisFrame stretched = frame;
  const int digits = 52 - exponentAbove(steps);
  const double factor = std::ldexp(std::floor(std::ldexp(1.0 / (steps * frame.unit), digits)), -digits);
  stretched.unit = frame.unit * factor;
  stretched.scale = frame.scale * Pair(factor);
  stretched.scaleError = frame.scaleError + kPairError;
  return stretched;
}

AxisFrame stretchedList(const AxisFrame& frame) {
  AxisFrame stretched = frame;
  const double reach = std::ldexp(frame.halfWidth, frame.exponent);
  stretched.scale = 0.5 / reach;
  stretched.exponent = frame.exponent + 1;
  stretched.coordinateError = frame.coordinateError / reach + kPairError;
  return stretched;
}

// The exponent of the last digit of a double that is not 0.
int lastDigit(double value) {
  int exponent = 0;
  double digits = std::frexp(value, &exponent);
  while (digits != std::floor(digits)) {
    digits *= 2;
    --exponent;
  }
  return exponent;
}

}  // namespace

// All are multiples of the last digit of the first one and of the step.
bool isExactlySpaced(const AxisData& axis) {
  const Pair step = (axis.upper - axis.lower) / Pair(static_cast<double>(axis.count - 1));
  if (axis.lower.low != 0.0 || axis.upper.low != 0.0 || step.low != 0.0 || step.high == 0.0) return false;
  int digit = lastDigit(step.high);
  if (axis.lower.high != 0.0) digit = std::min(digit, lastDigit(axis.lower.high));
  const double largest = std::max(std::fabs(axis.lower.high), std::fabs(axis.upper.high));
  return std::ldexp(largest, -digit) <= 0x1p53;
}

AxisFrame axisFrame(const AxisData& axis) {
  AxisFrame frame = axis.equallySpaced() ? frameOfSpaced(axis) : frameOfListed(axis);
  frame.usable = std::abs(frame.exponent) <= kLargestExponent && isFinite(frame.scale) && isFinite(frame.middle);
  return frame;
}

AxisFrame stretchedFrame(const AxisData& axis, const AxisFrame& frame) {
  return axis.equallySpaced() ? stretchedGrid(frame, static_cast<double>(axis.count - 1)) : stretchedList(frame);
}

bool coordinates(const AxisData& axis, const AxisFrame& frame, const PairSums& sums, std::size_t first,
                 std::size_t count, Pairs t) {
  if (axis.equallySpaced()) {
    const double last = static_cast<double>(axis.count - 1);
    for (std::size_t n = 0; n < count; ++n) {
      t.high[n] = (2.0 * static_cast<double>(first + n) - last) * frame.unit;
      t.low[n] = 0.0;
    }
    return isExactlySpaced(axis);
  }
  const double* values = axis.values.data() + first;
  const std::size_t padded = paddedToChains(count);
  const bool exact = lowParts(axis.reading, sums, values, count, t.low).exact;
  if (padded > count) {
    std::copy_n(values, count, t.high);
    values = t.high;
    std::fill(t.high + count, t.high + padded, frame.middle.high);
    std::fill(t.low + count, t.low + padded, frame.middle.low);
  }
  sums.coordinates({values, t.low}, frame.middle, frame.scale, std::ldexp(1.0, frame.exponent), padded, t);
  return exact;
}

Pair coordinateOf(const AxisFrame& frame, const Pair& x) {
  return scaled((x - frame.middle) * frame.scale, frame.exponent);
}

double coordinateErrorOf(const AxisFrame& frame, const Pair& x) {
  const double ofDifference = (kTypedError + kPairError) * (std::fabs(x.high) + frame.largestValue);
  const double ofProduct = (frame.scaleError + 4 * kPairError) * std::fabs((x - frame.middle).high);
  return std::ldexp(ofDifference + ofProduct, frame.exponent);
}

}  // namespace tavimor
