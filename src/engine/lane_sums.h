#pragma once

#include <cstddef>

#include "engine/axis.h"
#include "engine/fit_options.h"

namespace tavimor {

/// The sums of a fit in vector registers. A lane holds one chain of additions: the sum of one term, or of one element
/// of a normal matrix, over the points in their order. So every sum is the one that the plain loops give, to the bit,
/// and speed comes from many chains side by side.

/// A grid and the terms whose sums over it are wanted: f at the points, the first index fastest; the axes; the number
/// of terms (degree + 1) of each.
struct TermGrid {
  const double* f;
  PerVariable<Axis> axis;
  PerVariable<std::size_t> terms;

  /// The first axis whose powers are spread over the lanes, 1 or 2. The powers of the axes before it are run through
  /// in turn by each lane.
  std::size_t laneAxis;
};

/// A column is what a lane works on: the terms with the same powers of the lane axis and of those behind it. Columns
/// are numbered with the power of the lane axis fastest.
struct Columns {
  std::size_t first, end;
};

/// The powers d^0, d^1, ... of the deviations of some rows, kRowsTogether of them or 1: of[a * rows + row].
inline constexpr std::size_t kRowsTogether = 4;
struct RowPowers {
  const double* of;
  std::size_t terms;
  std::size_t rows;
};

/// The routines for one instruction set.
struct LaneSums {
  std::size_t lanes;

  /// The lane axis that gives the least work for these terms.
  std::size_t (*bestLaneAxis)(const PerVariable<std::size_t>& terms);

  /// The number of sums that a range of columns needs, padding included.
  std::size_t (*sumCount)(const TermGrid& grid, Columns columns);

  /// Adds the points firstPoint to endPoint - 1 to the sums of the columns. `sums` is zero before the first point.
  void (*addPoints)(const TermGrid& grid, Columns columns, std::size_t firstPoint, std::size_t endPoint, double* sums);

  /// Writes the sums of the columns to their places in the right-hand side, whose first index is the fastest.
  void (*collect)(const TermGrid& grid, Columns columns, const double* sums, double* rightHandSide);

  /// Sets the elements on and above the diagonal of the normal matrix of an axis: matrix(a,b), `terms` rows of `terms`
  /// elements. `sums` holds normalSumCount(terms) elements, zero before the first call: further calls with the same
  /// sums go on with further values of the axis.
  void (*normalMatrix)(const Axis& axis, std::size_t terms, double* sums, double* matrix);
  std::size_t (*normalSumCount)(std::size_t terms);

  /// line[i] = sum over a of coefficients[a] * d_i^a, a from 0 on, at every value of the axis.
  void (*evaluateLine)(const double* coefficients, std::size_t terms, const Axis& axis, double* line);

  /// values[row * length + n] = sum over a of coefficients[a * length + n] * d_row^a, a from 0 on, for n from 0 to
  /// length - 1.
  void (*evaluateRows)(const RowPowers& powers, const double* coefficients, std::size_t length, double* values);
};

/// Null for Plain: there the plain loops do it all.
const LaneSums* laneSums(InstructionSet set);

}  // namespace tavimor
