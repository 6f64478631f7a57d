#pragma once

#include "analysis/axis_basis.h"

namespace tavimor {

/// Chebyshev's polynomials as the basis of an axis whose values spread over all of -1 to 1,
///   T_0 = 1,   T_1 = t,   T_{j+1} = 2 t T_j - T_{j-1}.
/// Products of two are sums of others, T_j T_k = (T_{j+k} + T_{|j-k|}) / 2.
/// Source: Mason, Handscomb, Chebyshev Polynomials, 2003, 2.4.
Recurrence chebyshevRecurrence(std::size_t terms);  // two at least

/// What the places t of a block are.
enum class Places { Doubles, Pairs };

/// T_2 and those behind, at kMostDotted places each, from T_0 and T_1.
void fillChebyshevs(const PairSums& sums, std::size_t terms, Places places, Pairs polynomials);

/// The largest magnitude of each is that at 1 or at a coordinate a little beyond it.
BasisMagnitudes chebyshevMagnitudes(double largestCoordinate, std::size_t terms);

/// Above this error other polynomials are tried. Whether the error of the polynomials alone is below it can be told
/// before they are made.
constexpr double kMostChebyshevError = 1e-20;
bool isPreciseInChebyshevs(const AxisBasis& basis);

/// The inner products over a grid, and how far each can be off.
struct GridProducts {
  PairMatrix products;
  double error = 0.0;
};

/// Over `count` equally spaced values whose coordinate is that of recurrenceOfSpaced times `stretch`. Each polynomial
/// is a sum of the discrete Chebyshev polynomials, whose norms are known.
GridProducts chebyshevProductsOnGrid(std::size_t count, std::size_t terms, double stretch);

}  // namespace tavimor
