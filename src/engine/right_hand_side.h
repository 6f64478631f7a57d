#pragma once

#include "engine/fit_options.h"
#include "model/problem.h"

namespace tavimor {

/// The right-hand side of the normal equations, with the bounds Degree:
///   rhs(j0,j1,j2,j3) = sum over the grid of F * d3^j3 * d2^j2 * d1^j1 * d0^j0,   dk = Xk(ik) - Centre[k].
/// Order: i3 outermost, i0 innermost, every power by repeated multiplication from F on. The sum of each coefficient is
/// one chain in that order for any number of threads and lanes, so its bits never change.
/// Errors: SubscriptOutOfRange where a value list or F is smaller than LastPoint says, OutOfMemory; an overflow leaves
/// an infinity in its sum.
/// Source: Björck, Numerical Methods for Least Squares Problems, 1996, ch. 8 (tensor-product problems).
Table4 rightHandSide(const Problem& problem, const FitOptions& options = {});

}  // namespace tavimor
