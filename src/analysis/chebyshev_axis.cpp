#include "analysis/chebyshev_axis.h"

#include <algorithm>
#include <cmath>

#include "analysis/chebyshev_basis.h"

namespace tavimor {

namespace {

struct ChebyshevSums : PartSums {
  explicit ChebyshevSums(std::size_t terms) : PartSums(terms), single(terms), products(terms) {}

  ChainSums single, products;  // of each polynomial, and of each with the last one; the first of both is left out
};

// The buffers of one thread and what it does with a block of values.
class ChebyshevBlocks {
 public:
  ChebyshevBlocks(const AxisData& axis, const AxisBasis& basis, const FunctionValues& function, const PairSums& sums)
      : axis_(axis), basis_(basis), function_(function), sums_(sums), polynomials_(kMostDotted * axis.terms) {}

  void operator()(std::size_t first, std::size_t count, ChebyshevSums& part) {
    fillBasis(first, count, part);
    const ConstPairs function = readFunctionBlock(function_, sums_, {first, count}, room_, part);
    const std::size_t last = axis_.terms - 1;
    const ConstPairs all = Pairs(polynomials_), fromFirst = all + kMostDotted, ofLast = all + last * kMostDotted;
    sums_.addUp(function, kBlock, kChains, part.y.from(0));
    sums_.dots(function, fromFirst, kMostDotted, last, kMostDotted, part.y.from(1));
    for (std::size_t j = 1; j <= last; ++j) sums_.addUp(all + j * kMostDotted, kBlock, kChains, part.single.from(j));
    sums_.dots(ofLast, fromFirst, kMostDotted, last, kMostDotted, part.products.from(1));
  }

 private:
  // Behind the end of the values all are 0.
  void fillBasis(std::size_t first, std::size_t count, PartSums& part) {
    beginPolynomials(count, polynomials_);
    const Pairs all = polynomials_, t = all + kMostDotted;
    part.exactValues = coordinates(axis_, basis_.frame, sums_, first, count, t) && part.exactValues;
    std::fill(t.high + count, t.high + kMostDotted, 0.0);
    std::fill(t.low + count, t.low + kMostDotted, 0.0);
    fillChebyshevs(sums_, axis_.terms, Places::Pairs, all);
  }

  const AxisData& axis_;
  const AxisBasis& basis_;
  const FunctionValues& function_;
  const PairSums& sums_;
  PairList polynomials_, room_{kMostDotted};
};

double largestCoordinate(const AxisData& axis, const AxisFrame& frame) {
  const Pair least = valueRead(axis.range.least, axis.reading), most = valueRead(axis.range.most, axis.reading);
  return std::max(std::fabs(coordinateOf(frame, least).high), std::fabs(coordinateOf(frame, most).high));
}

// The sums of T_0 .. T_{2q}.
std::vector<Pair> sumsOfPolynomials(const std::vector<ChebyshevSums>& parts, const AxisBasis& basis) {
  const std::size_t last = basis.terms - 1;
  std::vector<Pair> sums(2 * last + 1);
  sums[0] = static_cast<double>(basis.count);
  for (std::size_t j = 1; j <= last; ++j) {
    Pair product;
    for (const ChebyshevSums& part : parts) {
      sums[j] = sums[j] + part.single.total(j);
      product = product + part.products.total(j);
    }
    sums[last + j] = product;
  }
  for (std::size_t j = 1; j <= last; ++j) sums[last + j] = scaled(sums[last + j], 1) - sums[last - j];
  return sums;
}

// With e the largest error of a sum that was formed, one that follows is off by 3 e at most, and so is the mean of two.
void finish(const std::vector<ChebyshevSums>& parts, LongAxisSums& result, const AnalysisOptions& options) {
  AxisBasis& basis = result.basis;
  const std::vector<Pair> sums = sumsOfPolynomials(parts, basis);
  PairMatrix products(basis.terms, basis.terms);
  for (std::size_t j = 0; j < basis.terms; ++j)
    for (std::size_t k = 0; k < basis.terms; ++k)
      products(j, k) = scaled(sums[j + k] + sums[j < k ? k - j : j - k], -1);
  const double count = static_cast<double>(basis.count), largest = result.magnitudes.largest.back();
  const double ofSums = (sumError(basis.count) + 4 * kPairError) * count * largest * largest;
  const double ofPolynomials = 3 * normOfBasisErrors(basis, result.magnitudes) * std::sqrt(count) * largest;
  orthonormalise(basis, products, 3 * (ofSums + ofPolynomials) / leastNorm(products), result.magnitudes, options);
}

}  // namespace

std::optional<LongAxisSums> chebyshevAxisSums(const AxisData& axis, const FunctionValues& function,
                                              const AnalysisOptions& options) {
  LongAxisSums result(framedBasis(axis));
  if (!result.basis.frame.usable || axis.terms < 2) return std::nullopt;
  result.basis.frame = stretchedFrame(axis, result.basis.frame);
  result.basis.recurrence = chebyshevRecurrence(axis.terms);
  if (!isPreciseInChebyshevs(result.basis)) return std::nullopt;
  const AxisParts cut(axis.count);
  std::vector<ChebyshevSums> parts(cut.count(), ChebyshevSums(axis.terms));
  sumParts(cut, 45 * static_cast<double>(axis.terms), options, parts,
           [&] { return ChebyshevBlocks(axis, result.basis, function, pairSums(options.instructionSet)); });
  for (const ChebyshevSums& part : parts) result.add(part);
  result.magnitudes = chebyshevMagnitudes(largestCoordinate(axis, result.basis.frame), axis.terms);
  finish(parts, result, options);
  if (!(result.basis.error < kMostChebyshevError)) return std::nullopt;
  return result;
}

}  // namespace tavimor
