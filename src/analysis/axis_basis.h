#pragma once

#include <vector>

#include "analysis/analysis_options.h"
#include "analysis/axis_frame.h"
#include "analysis/pair_table.h"
#include "analysis/recurrence.h"

namespace tavimor {

/// The polynomials P_0 .. P_{terms-1} of one axis and what makes them orthonormal over its values: with S the matrix of
/// their inner products, S = L L^T, the functions L^-1 P are.
/// Source: Björck, Numerical Methods for Least Squares Problems, 1996, ch. 8.
struct AxisBasis {
  std::size_t count = 1, terms = 1;
  AxisFrame frame;
  Recurrence recurrence;
  PairMatrix values;                  // P_j at value i: row i, column j; empty where it was not kept
  std::vector<std::size_t> mirrored;  // values i: P_j there is (-1)^j times that at count - 1 - i, to the bit
  PairMatrix inverse;                 // L^-1, lower triangular
  bool exactValues = false;           // the values of the axis are doubles exactly

  /// The relative error that the basis brings into a solution, at most, beside the norm of the function; infinite
  /// where S is not positive definite as far as can be told.
  double error = 0.0;
};

/// The basis of an axis that has at least `terms` different values, all finite.
/// Errors: OutOfMemory, AnalysisCancelled.
AxisBasis axisBasis(const AxisData& axis, const AnalysisOptions& options);

/// A basis of which only the frame is made; its error is infinite where the frame is not usable.
AxisBasis framedBasis(const AxisData& axis);

/// What the bounds of the polynomials' errors at the values of an axis are made of.
struct BasisMagnitudes {
  explicit BasisMagnitudes(std::size_t terms) : largest(terms) { largest[0] = 1.0; }

  double largestCoordinate = 0.0;
  std::vector<double> largest;  // magnitude of each polynomial
  double further = 0.0;         // what else a value of a polynomial can be off at most
};

/// The root of the summed squares of the errors of all polynomials at all values, at most: the rounding of every step
/// of the recurrence, carried on by those behind it.
double normOfBasisErrors(const AxisBasis& basis, const BasisMagnitudes& magnitudes);

/// Makes `inverse` and `error` from the matrix of inner products. `normError` is the relative error of each of its
/// elements beside the product of the norms.
void orthonormalise(AxisBasis& basis, const PairMatrix& products, double normError, const BasisMagnitudes& magnitudes,
                    const AnalysisOptions& options);

/// The bound of the rounding in a sum of `count` products, beside the sum of their magnitudes.
double sumError(std::size_t count);

/// The recurrence for an axis, from a sample of its values where they are not equally spaced.
Recurrence axisRecurrence(const AxisData& axis, const AxisFrame& frame, const PairSums& sums);

/// The polynomials at `count` (a multiple of kChains) coordinates, polynomial j from place j * count on, the first one
/// being given. Raises `largest` of each polynomial to the magnitudes found.
void fillPolynomials(const Recurrence& recurrence, const PairSums& sums, ConstPairs t, std::size_t count,
                     Pairs polynomials, std::vector<double>& largest);

}  // namespace tavimor
