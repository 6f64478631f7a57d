#pragma once

#include <vector>

#include "analysis/axis_data.h"
#include "analysis/pair_sums.h"

namespace tavimor {

/// The coordinate of an axis in which its basis is made: t = (x - middle) * scale * 2^exponent, |t| <= 1.
/// Equally spaced values have t = (2 i - (count - 1)) unit, exactly; for others t is a pair.
struct AxisFrame {
  Pair middle;
  Pair scale = 1.0;  // its magnitude is from 1/2 to 1, up to 2 where it was stretched
  int exponent = 0;
  double unit = 1.0;
  double coordinateError = 0.0;  // of a t, at most
  double scaleError = 0.0;       // of the scale, relative
  bool usable = true;            // false where the scale is beyond the range of pairs

  double largestValue = 0.0;  // the magnitude of lower, upper and the values, at most
  double halfWidth = 0.0;     // of the range of listed values
};

AxisFrame axisFrame(const AxisData& axis);

/// The frame in which values whose t reach somewhere between 1/2 and 1 reach 1, or nearly so.
AxisFrame stretchedFrame(const AxisData& axis, const AxisFrame& frame);

/// The coordinates of `count` values from number `first` on; t has room for a multiple of kChains. True where the
/// values are doubles exactly.
bool coordinates(const AxisData& axis, const AxisFrame& frame, const PairSums& sums, std::size_t first,
                 std::size_t count, Pairs t);

/// Whether equally spaced values are doubles exactly, all of them.
bool isExactlySpaced(const AxisData& axis);

/// The coordinate of any number, and the error of that at most.
Pair coordinateOf(const AxisFrame& frame, const Pair& x);
double coordinateErrorOf(const AxisFrame& frame, const Pair& x);

}  // namespace tavimor
