#pragma once

#include "formats/formulas/formula.h"

namespace tavimor {

/// The first `count` of these points, with the formula's values there: the corners of the box of intervals, its
/// middle, the centre of expansion where that is inside, and then by turns grid points and points between, spread by
/// Halton's sequence. The same for every run.
///
/// The bound of rounding at a point is 2 g S with S = sum of |coefficient| times the powers of |offset|, and
/// g = m u / (1 - m u) for the m operations on the way and the unit roundoff u: each of two orders of rounding is
/// within g S of the exact value. Source: Higham, Accuracy and Stability of Numerical Algorithms, 2002, section 5.1.
std::vector<CheckPoint> checkPoints(const Formula& formula, const Problem& problem, Long count);

}  // namespace tavimor
