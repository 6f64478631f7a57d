#include "analysis/grid_axis.h"

#include <algorithm>
#include <cmath>

#include "analysis/chebyshev_basis.h"
#include "analysis/deviation_sums.h"
#include "analysis/low_parts.h"

namespace tavimor {

namespace {

constexpr std::size_t kLookedAt = 64;  // values, before all are

enum class Polynomials { Chebyshev, DiscreteChebyshev };

struct GridSums : PartSums {
  explicit GridSums(std::size_t terms) : PartSums(terms), deviations(terms) {}

  DeviationSums deviations;
};

// The buffers of one thread and what it does with a block of places and those opposite to them.
class GridBlocks {
 public:
  GridBlocks(const AxisData& axis, const AxisBasis& basis, Polynomials kind, const FunctionValues& function,
             const PairSums& sums)
      : axis_(axis),
        basis_(basis),
        kind_(kind),
        function_(function),
        sums_(sums),
        width_(Pair(1.0) / scaled(basis.frame.scale, basis.frame.exponent)),
        polynomials_(kMostDotted * std::max<std::size_t>(axis.terms, 2)) {
    for (std::size_t n = 0; n < kMostDotted; ++n) steps_[n] = 2.0 * static_cast<double>(n);
  }

  void operator()(std::size_t first, std::size_t count, GridSums& part) {
    // The value in the middle is not opposite to another one.
    const std::size_t shared = axis_.count - first - count < first + count ? count - 1 : count;
    const Stretch front{first, count}, back{axis_.count - first - shared, shared, Stretch::Back};
    fillBasis(first, count, part);
    const ConstPairs inFront = readFunctionBlock(function_, sums_, front, front_, part);
    const ConstPairs behind = readFunctionBlock(function_, sums_, back, back_, part);
    addFunction(inFront, behind, part);
    if (axis_.equallySpaced()) return;
    const OppositeDeviations deviations = {deviationsOf(front, width_, frontDeviation_, part),
                                           deviationsOf(back, -width_, backDeviation_, part), inFront.high,
                                           behind.high};
    part.deviations.add(sums_, deviations, polynomials_.high.data());
  }

 private:
  void fillBasis(std::size_t first, std::size_t count, PartSums& part) {
    const double unit = basis_.frame.unit;
    const double start = 2.0 * static_cast<double>(first) - static_cast<double>(axis_.count - 1);
    for (std::size_t n = 0; n < count; ++n) t_.high[n] = (start + steps_[n]) * unit;
    std::fill(t_.high.begin() + static_cast<std::ptrdiff_t>(count), t_.high.end(), 0.0);
    part.largestCoordinate = std::max(part.largestCoordinate, std::fabs(t_.high[0]));
    beginPolynomials(count, polynomials_);
    if (kind_ == Polynomials::DiscreteChebyshev) {
      fillPolynomials(basis_.recurrence, sums_, Pairs(t_), kMostDotted, polynomials_, part.largest);
      return;
    }
    std::copy(t_.high.begin(), t_.high.end(), polynomials_.high.begin() + kMostDotted);
    fillChebyshevs(sums_, axis_.terms, Places::Doubles, polynomials_);
  }

  // The even polynomials first, of which one is 1, then the odd ones.
  void addFunction(ConstPairs front, ConstPairs back, PartSums& part) {
    sums_.sumAndDifference(front, back, kMostDotted, even_, odd_);
    const ConstPairs all = Pairs(polynomials_);
    const std::size_t evenCount = (axis_.terms + 1) / 2;
    sums_.addUp(Pairs(even_), kBlock, kChains, part.y.from(0));
    sums_.dots(Pairs(even_), all + 2 * kMostDotted, 2 * kMostDotted, evenCount - 1, kMostDotted, part.y.from(1));
    sums_.dots(Pairs(odd_), all + kMostDotted, 2 * kMostDotted, axis_.terms / 2, kMostDotted, part.y.from(evenCount));
  }

  // Behind the end, as at the middle place, a value in the middle has no deviation.
  const double* deviationsOf(const Stretch& stretch, const Pair& width, std::vector<double>& deviation,
                             GridSums& part) {
    const AxisFrame& frame = basis_.frame;
    const double* x = stretch.of(axis_.values.data(), x_.high, frame.middle.high);
    part.exactValues = lowParts(axis_.reading, sums_, x, stretch.count, x_.low.data()).exact && part.exactValues;
    std::fill(x_.low.begin() + static_cast<std::ptrdiff_t>(stretch.count), x_.low.end(), frame.middle.low);
    const double unit = std::ldexp(frame.scale.high, frame.exponent);
    const double largest =
        sums_.deviations({x, x_.low.data()}, t_.high.data(), frame.middle, width, unit, kMostDotted, deviation.data());
    part.deviations.largest = std::max(part.deviations.largest, largest);
    return deviation.data();
  }

  const AxisData& axis_;
  const AxisBasis& basis_;
  const Polynomials kind_;
  const FunctionValues& function_;
  const PairSums& sums_;
  Pair width_;  // of the coordinate's unit
  std::vector<double> steps_ = std::vector<double>(kMostDotted), frontDeviation_ = steps_, backDeviation_ = steps_;
  PairList t_{kMostDotted}, x_{kMostDotted}, polynomials_, front_{kMostDotted}, back_{kMostDotted}, even_{kMostDotted},
      odd_{kMostDotted};
};

// The axis as a grid from its first value to its last one.
AxisData gridOf(const AxisData& axis) {
  AxisData grid = axis;
  if (axis.equallySpaced()) return grid;
  grid.values = {};
  grid.lower = valueRead(axis.values.front(), axis.reading);
  grid.upper = valueRead(axis.values.back(), axis.reading);
  return grid;
}

GridProducts discreteProductsOnGrid(const AxisData& axis) {
  GridProducts grid{PairMatrix(axis.terms, axis.terms), 0.0};
  const std::vector<Pair> norms = squaredNormsOfSpaced(axis.count, axis.terms);
  for (std::size_t j = 0; j < axis.terms; ++j) {
    grid.products(j, j) = norms[j];
    grid.error = std::max(grid.error, 4 * static_cast<double>(axis.terms) * kPairError * norms[j].high);
  }
  return grid;
}

GridProducts productsOnGrid(const AxisData& axis, const AxisFrame& frame, Polynomials kind) {
  if (kind == Polynomials::DiscreteChebyshev) return discreteProductsOnGrid(axis);
  return chebyshevProductsOnGrid(axis.count, axis.terms, frame.unit / axisFrame(gridOf(axis)).unit);
}

// Whether some of the values lie where a grid from the first to the last one has them, as far as doubles can tell.
bool looksLikeGrid(const AxisData& axis) {
  const double first = axis.values.front(), last = axis.values.back();
  const double step = (last - first) / static_cast<double>(axis.count - 1);
  const double rounding = 8 * kUnitRoundoff * std::max(std::fabs(first), std::fabs(last));
  const double degree = static_cast<double>(axis.terms - 1);
  const double most = kMostShare * std::fabs(last - first);
  for (std::size_t n = 0; n < kLookedAt; ++n) {
    const std::size_t i = n * (axis.count - 1) / (kLookedAt - 1);
    const double deviation = axis.values[i] - (first + static_cast<double>(i) * step);
    if (!((std::fabs(deviation) + rounding) * degree * degree <= most)) return false;
  }
  return true;
}

AxisBasis gridBasis(const AxisData& axis, Polynomials kind) {
  const AxisData grid = gridOf(axis);
  AxisBasis basis = framedBasis(grid);
  if (!basis.frame.usable) return basis;
  if (kind == Polynomials::DiscreteChebyshev) {
    basis.recurrence = recurrenceOfSpaced(axis.count, axis.terms);
    return basis;
  }
  basis.frame = stretchedFrame(grid, basis.frame);
  basis.recurrence = chebyshevRecurrence(axis.terms);
  if (!axis.equallySpaced()) {
    const double largest = std::fabs(basis.frame.largestValue * basis.frame.scale.high);
    basis.frame.coordinateError =
        (kTypedError + 2 * kPairError) * std::ldexp(largest, basis.frame.exponent) + 8 * kPairError;
  }
  return basis;
}

// What the deviations of listed values add. False where they are too large to tell.
bool addGains(const DeviationSums& deviations, std::size_t addends, PairMatrix& products, LongAxisSums& result,
              double& normError) {
  const DeviationGains gains(deviations);
  const auto error = gains.error(addends);
  if (!error) return false;
  normError += *error;
  result.magnitudes.further = *error;
  for (std::size_t j = 0; j < products.rows; ++j) {
    result.y[j] = result.y[j] + Pair(gains.ofFunction(j));
    for (std::size_t k = 0; k < products.rows; ++k) products(j, k) = products(j, k) + Pair(gains.ofProduct(j, k));
  }
  return true;
}

bool finish(const AxisData& axis, Polynomials kind, const std::vector<GridSums>& parts, std::size_t addends,
            const AnalysisOptions& options, LongAxisSums& result) {
  DeviationSums deviations(axis.terms);
  for (const GridSums& part : parts) {
    result.add(part);
    deviations.add(part.deviations);
  }
  const std::vector<Pair> evenFirst = result.y;
  for (std::size_t j = 0; j < axis.terms; ++j) result.y[j] = evenFirst[placeEvenFirst(j, axis.terms)];
  if (kind == Polynomials::Chebyshev)
    result.magnitudes = chebyshevMagnitudes(result.magnitudes.largestCoordinate, axis.terms);
  GridProducts grid = productsOnGrid(axis, result.basis.frame, kind);
  double normError = grid.error / leastNorm(grid.products) + sumError(axis.count);
  if (axis.equallySpaced())
    result.basis.exactValues = isExactlySpaced(axis);
  else if (!addGains(deviations, addends, grid.products, result, normError))
    return false;
  orthonormalise(result.basis, grid.products, normError, result.magnitudes, options);
  return true;
}

std::optional<LongAxisSums> sumsIn(Polynomials kind, const AxisData& axis, const FunctionValues& function,
                                   const AnalysisOptions& options) {
  LongAxisSums result(gridBasis(axis, kind));
  if (!result.basis.frame.usable) return axis.equallySpaced() ? std::optional(result) : std::nullopt;
  if (kind == Polynomials::Chebyshev && !isPreciseInChebyshevs(result.basis)) return std::nullopt;
  const AxisParts cut((axis.count + 1) / 2);
  std::vector<GridSums> parts(cut.count(), GridSums(axis.terms));
  const double terms = static_cast<double>(axis.terms);
  sumParts(cut, 40 * terms, options, parts,
           [&] { return GridBlocks(axis, result.basis, kind, function, pairSums(options.instructionSet)); });
  const std::size_t addends = kBlock + kChains + cut.blocksOfPart + cut.count();
  if (!finish(axis, kind, parts, addends, options, result)) return std::nullopt;
  return result;
}

}  // namespace

std::optional<LongAxisSums> gridAxisSums(const AxisData& axis, const FunctionValues& function,
                                         const AnalysisOptions& options) {
  if (!axis.equallySpaced() && !looksLikeGrid(axis)) return std::nullopt;
  if (axis.terms > 1)
    if (auto sums = sumsIn(Polynomials::Chebyshev, axis, function, options);
        sums && sums->basis.error < kMostChebyshevError)
      return sums;
  if (!axis.equallySpaced()) return std::nullopt;
  return sumsIn(Polynomials::DiscreteChebyshev, axis, function, options);
}

}  // namespace tavimor
