#include "analysis/axis_basis.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <new>

#include "analysis/cholesky.h"
#include "runtime/run_time_error.h"

namespace tavimor {

namespace {

constexpr std::size_t kMostSampled = 4096;
constexpr double kSquaredUnit = kUnitRoundoff * kUnitRoundoff;

Pair innerProduct(const PairSums& sums, ConstPairs a, ConstPairs b, std::size_t count) {
  ChainSum sum;
  for (std::size_t n = 0; n < count; n += kMostDotted)
    sums.dot(a + n, b + n, std::min(kMostDotted, count - n), sum.chains());
  return sum.total();
}

// The error of each polynomial at a value, at most: the rounding of every step, carried on by those behind it.
double normOfBasisErrors(const AxisBasis& basis, const BasisMagnitudes& magnitudes) {
  double before = 0.0, current = 0.0, sumOfSquares = 0.0;
  for (std::size_t j = 0; j < basis.recurrence.size(); ++j) {
    const RecurrenceStep& step = basis.recurrence[j];
    const double factor = step.scale * (magnitudes.largestCoordinate + std::fabs(step.shift));
    const double back = std::fabs(step.back.high);
    const double largestBefore = j > 0 ? magnitudes.largest[j - 1] : 0.0;
    const double rounding = 2 * kPairError * (factor * magnitudes.largest[j] + back * largestBefore);
    const double ofCoordinate = step.scale * basis.frame.coordinateError * magnitudes.largest[j];
    const double next = factor * current + back * before + rounding + ofCoordinate;
    before = current;
    current = next;
    sumOfSquares += next * next;
  }
  return std::sqrt(static_cast<double>(basis.count) * sumOfSquares);
}

double frobeniusNorm(const PairMatrix& matrix) {
  double sum = 0.0;
  for (const Pair& element : matrix.elements) sum += element.high * element.high;
  return std::sqrt(sum);
}

}  // namespace

double sumError(std::size_t count) { return (4096 + 8 * (static_cast<double>(count) / kBlock + 1)) * kSquaredUnit; }

Recurrence axisRecurrence(const AxisData& axis, const AxisFrame& frame, const PairSums& sums) {
  if (axis.equallySpaced()) return recurrenceOfSpaced(axis.count, axis.terms);
  PairList t(axis.count <= kMostSampled ? axis.count : 1);
  std::vector<double> sample;
  if (axis.count <= kMostSampled) {
    coordinates(axis, frame, sums, 0, axis.count, t);
    sample = std::move(t.high);
  } else {
    for (std::size_t n = 0; n < kMostSampled; ++n) {
      coordinates(axis, frame, sums, n * (axis.count - 1) / (kMostSampled - 1), 1, t);
      sample.push_back(t.high[0]);
    }
  }
  return recurrenceOf(sample, axis.terms);
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
    const std::size_t rows = paddedToChains(axis.count);
    PairList t(rows), polynomials(rows * axis.terms);
    basis.exactValues = coordinates(axis, basis.frame, sums, 0, axis.count, t);
    std::fill_n(polynomials.high.begin(), axis.count, 1.0);
    BasisMagnitudes magnitudes{0.0, std::vector<double>(axis.terms)};
    magnitudes.largest[0] = 1.0;
    for (const double value : t.high)
      magnitudes.largestCoordinate = std::max(magnitudes.largestCoordinate, std::fabs(value));
    fillPolynomials(basis.recurrence, sums, Pairs(t), rows, polynomials, magnitudes.largest);
    const Pairs all = polynomials;
    PairMatrix products(axis.terms, axis.terms);
    for (std::size_t a = 0; a < axis.terms; ++a) {
      goOn(options);
      for (std::size_t b = 0; b <= a; ++b)
        products(a, b) = products(b, a) = innerProduct(sums, all + a * rows, all + b * rows, rows);
    }
    orthonormalise(basis, products, sumError(axis.count), magnitudes, options);
    basis.values = PairMatrix(axis.count, axis.terms);
    for (std::size_t j = 0; j < axis.terms; ++j)
      for (std::size_t i = 0; i < axis.count; ++i)
        basis.values(i, j) = {polynomials.high[j * rows + i], polynomials.low[j * rows + i]};
  } catch (const std::bad_alloc&) {
    throw RunTimeError(ErrorNumber::OutOfMemory);
  }
  return basis;
}

}  // namespace tavimor
