#include "analysis/axis_basis.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <new>

#include "analysis/axis_symmetry.h"
#include "analysis/cholesky.h"
#include "runtime/run_time_error.h"

namespace tavimor {

namespace {

constexpr std::size_t kMostSampled = 4096;
constexpr double kSquaredUnit = kUnitRoundoff * kUnitRoundoff;
constexpr double kStepError = 5 * kPairError;  // of `advance`, beside the magnitudes of its two products

Pair innerProduct(const PairSums& sums, ConstPairs a, ConstPairs b, std::size_t count) {
  ChainSums sum(1);
  for (std::size_t n = 0; n < count; n += kMostDotted)
    sums.dots(a + n, b + n, 0, 1, std::min(kMostDotted, count - n), sum.from(0));
  return sum.total(0);
}

// All of them, or some that lie evenly among a great many.
std::vector<double> sampledCoordinates(const AxisData& axis, const AxisFrame& frame, const PairSums& sums) {
  if (axis.count <= kMostSampled) {
    PairList t(paddedToChains(axis.count));
    coordinates(axis, frame, sums, 0, axis.count, t);
    return {t.high.data(), t.high.data() + axis.count};
  }
  PairList t(kChains);
  std::vector<double> sample;
  for (std::size_t n = 0; n < kMostSampled; ++n) {
    coordinates(axis, frame, sums, n * (axis.count - 1) / (kMostSampled - 1), 1, t);
    sample.push_back(t.high[0]);
  }
  return sample;
}

// The coordinates of all values of the axis. Without shifts in the recurrence the polynomials at values opposite each
// other are the same or the negative.
PairList coordinatesOfAxis(const AxisData& axis, const PairSums& sums, AxisBasis& basis) {
  PairList t(paddedToChains(axis.count));
  basis.exactValues = coordinates(axis, basis.frame, sums, 0, axis.count, t);
  // An eighth of what is charged for the coordinates: so much their own rounding can have made of symmetric values.
  Mirrored found = mirrored(t, axis.count, basis.frame.coordinateError / 8);
  if (found.values.empty()) return t;
  basis.mirrored = std::move(found.values);
  basis.frame.coordinateError += found.moved;
  for (RecurrenceStep& step : basis.recurrence) step.shift = 0.0;
  return t;
}

// The polynomials at all values of the axis, one after the other, each as long as the coordinates.
BasisMagnitudes fillAxis(PairList& t, const PairSums& sums, PairList& polynomials, const AxisBasis& basis) {
  std::fill_n(polynomials.high.begin(), basis.count, 1.0);
  BasisMagnitudes magnitudes(basis.terms);
  for (const double value : t.high)
    magnitudes.largestCoordinate = std::max(magnitudes.largestCoordinate, std::fabs(value));
  fillPolynomials(basis.recurrence, sums, Pairs(t), t.high.size(), polynomials, magnitudes.largest);
  return magnitudes;
}

PairMatrix innerProducts(const PairSums& sums, ConstPairs polynomials, std::size_t rows, std::size_t terms,
                         const AnalysisOptions& options) {
  PairMatrix products(terms, terms);
  for (std::size_t a = 0; a < terms; ++a) {
    goOn(options);
    for (std::size_t b = 0; b <= a; ++b)
      products(a, b) = products(b, a) = innerProduct(sums, polynomials + a * rows, polynomials + b * rows, rows);
  }
  return products;
}

PairMatrix valuesByRow(const PairList& polynomials, std::size_t rows, std::size_t count, std::size_t terms) {
  PairMatrix values(count, terms);
  for (std::size_t j = 0; j < terms; ++j)
    for (std::size_t i = 0; i < count; ++i)
      values(i, j) = {polynomials.high[j * rows + i], polynomials.low[j * rows + i]};
  return values;
}

double frobeniusNorm(const PairMatrix& matrix) {
  double sum = 0.0;
  for (const Pair& element : matrix.elements) sum += element.high * element.high;
  return std::sqrt(sum);
}

}  // namespace

double normOfBasisErrors(const AxisBasis& basis, const BasisMagnitudes& magnitudes) {
  double before = 0.0, current = 0.0, sumOfSquares = 0.0;
  for (std::size_t j = 0; j < basis.recurrence.size(); ++j) {
    const RecurrenceStep& step = basis.recurrence[j];
    const double factor = step.scale * (magnitudes.largestCoordinate + std::fabs(step.shift));
    const double back = std::fabs(step.back.high);
    const double largestBefore = j > 0 ? magnitudes.largest[j - 1] : 0.0;
    const double rounding = kStepError * (factor * magnitudes.largest[j] + back * largestBefore);
    const double ofCoordinate = step.scale * basis.frame.coordinateError * magnitudes.largest[j];
    const double next = factor * current + back * before + rounding + ofCoordinate;
    before = current;
    current = next;
    sumOfSquares += (next + magnitudes.further) * (next + magnitudes.further);
  }
  return std::sqrt(static_cast<double>(basis.count) * sumOfSquares);
}

double sumError(std::size_t count) { return (4096 + 8 * (static_cast<double>(count) / kBlock + 1)) * kSquaredUnit; }

Recurrence axisRecurrence(const AxisData& axis, const AxisFrame& frame, const PairSums& sums) {
  if (axis.equallySpaced()) return recurrenceOfSpaced(axis.count, axis.terms);
  return recurrenceOf(sampledCoordinates(axis, frame, sums), axis.terms);
}

void fillPolynomials(const Recurrence& recurrence, const PairSums& sums, ConstPairs t, std::size_t count,
                     Pairs polynomials, std::vector<double>& largest) {
  for (std::size_t j = 0; j < recurrence.size(); ++j) {
    const Pairs current = polynomials + j * count;
    const ConstPairs before = j > 0 ? polynomials + (j - 1) * count : current;  // times 0
    const double found = sums.advance(recurrence[j], t, current, before, count, polynomials + (j + 1) * count);
    // A NaN, which is not the larger of two, must not be lost.
    largest[j + 1] = found <= largest[j + 1] ? largest[j + 1] : found;
  }
}

void orthonormalise(AxisBasis& basis, const PairMatrix& products, double normError, const BasisMagnitudes& magnitudes,
                    const AnalysisOptions& options) {
  basis.error = std::numeric_limits<double>::infinity();
  const auto factor = choleskyFactor(products, options);
  if (!factor) return;
  basis.inverse = inverseOfLower(*factor, options);
  const double ofInverse = frobeniusNorm(basis.inverse);
  const double condition = ofInverse * frobeniusNorm(*factor);
  const double error =
      ofInverse * normOfBasisErrors(basis, magnitudes) * (1 + 2 * condition) +
      (normError + static_cast<double>(basis.terms) * kPairError) * (condition * condition + condition);
  if (std::isfinite(error)) basis.error = error;
}

AxisBasis framedBasis(const AxisData& axis) {
  AxisBasis basis;
  basis.count = axis.count;
  basis.terms = axis.terms;
  basis.frame = axisFrame(axis);
  if (!basis.frame.usable) basis.error = std::numeric_limits<double>::infinity();
  return basis;
}

AxisBasis axisBasis(const AxisData& axis, const AnalysisOptions& options) {
  const PairSums& sums = pairSums(options.instructionSet);
  AxisBasis basis = framedBasis(axis);
  if (!basis.frame.usable) return basis;
  try {
    basis.recurrence = axisRecurrence(axis, basis.frame, sums);
    PairList t = coordinatesOfAxis(axis, sums, basis);
    const std::size_t rows = t.high.size();
    PairList polynomials(rows * axis.terms);
    const BasisMagnitudes magnitudes = fillAxis(t, sums, polynomials, basis);
    const PairMatrix products = innerProducts(sums, Pairs(polynomials), rows, axis.terms, options);
    orthonormalise(basis, products, sumError(axis.count), magnitudes, options);
    basis.values = valuesByRow(polynomials, rows, axis.count, axis.terms);
  } catch (const std::bad_alloc&) {
    throw RunTimeError(ErrorNumber::OutOfMemory);
  }
  return basis;
}

}  // namespace tavimor
