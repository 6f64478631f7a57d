#include "analysis/long_axis.h"

#include <algorithm>
#include <cmath>
#include <new>

#include "analysis/chebyshev_axis.h"
#include "analysis/grid_axis.h"
#include "runtime/run_time_error.h"

namespace tavimor {

namespace {

struct ListedSums : PartSums {
  explicit ListedSums(std::size_t terms) : PartSums(terms), products(terms * (terms + 1) / 2) {}

  ChainSums products;  // of the polynomials, lower triangle by row
};

// The buffers of one thread and what it does with a block of values.
class ListedBlocks {
 public:
  ListedBlocks(const AxisData& axis, const AxisBasis& basis, const FunctionValues& function, const PairSums& sums)
      : axis_(axis), basis_(basis), function_(function), sums_(sums), polynomials_(kMostDotted * axis.terms) {}

  void operator()(std::size_t first, std::size_t count, ListedSums& part) {
    fillBasis(first, count, part);
    const ConstPairs function = readFunctionBlock(function_, sums_, {first, count}, room_, part);
    const ConstPairs all = Pairs(polynomials_);
    sums_.dots(function, all, kMostDotted, axis_.terms, kMostDotted, part.y.from(0));
    for (std::size_t j = 0; j < axis_.terms; ++j)
      sums_.dots(all + j * kMostDotted, all, kMostDotted, j + 1, kMostDotted, part.products.from(j * (j + 1) / 2));
  }

 private:
  void fillBasis(std::size_t first, std::size_t count, PartSums& part) {
    part.exactValues = coordinates(axis_, basis_.frame, sums_, first, count, t_) && part.exactValues;
    beginPolynomials(count, polynomials_);
    part.largestCoordinate = std::max(part.largestCoordinate, sums_.magnitudes(t_.high.data(), count).largest);
    fillPolynomials(basis_.recurrence, sums_, Pairs(t_), kMostDotted, polynomials_, part.largest);
  }

  const AxisData& axis_;
  const AxisBasis& basis_;
  const FunctionValues& function_;
  const PairSums& sums_;
  PairList t_{kMostDotted}, polynomials_, room_{kMostDotted};
};

PairMatrix productsOf(const std::vector<ListedSums>& parts, std::size_t terms) {
  PairMatrix products(terms, terms);
  for (std::size_t j = 0, n = 0; j < terms; ++j)
    for (std::size_t i = 0; i <= j; ++i, ++n) {
      Pair sum;
      for (const ListedSums& part : parts) sum = sum + part.products.total(n);
      products(i, j) = products(j, i) = sum;
    }
  return products;
}

LongAxisSums listedAxisSums(const AxisData& axis, const FunctionValues& function, const AnalysisOptions& options) {
  LongAxisSums result(framedBasis(axis));
  if (!result.basis.frame.usable) return result;
  const PairSums& sums = pairSums(options.instructionSet);
  result.basis.recurrence = axisRecurrence(axis, result.basis.frame, sums);
  const AxisParts cut(axis.count);
  std::vector<ListedSums> parts(cut.count(), ListedSums(axis.terms));
  const double terms = static_cast<double>(axis.terms);
  sumParts(cut, 10 * terms * (terms + 6), options, parts,
           [&] { return ListedBlocks(axis, result.basis, function, sums); });
  for (const ListedSums& part : parts) result.add(part);
  orthonormalise(result.basis, productsOf(parts, axis.terms), sumError(axis.count), result.magnitudes, options);
  return result;
}

}  // namespace

LongAxisSums longAxisSums(const AxisData& axis, const FunctionValues& function, const AnalysisOptions& options) {
  try {
    if (auto onGrid = gridAxisSums(axis, function, options)) return std::move(*onGrid);
    if (auto inChebyshevs = chebyshevAxisSums(axis, function, options)) return std::move(*inChebyshevs);
    return listedAxisSums(axis, function, options);
  } catch (const std::bad_alloc&) {
    throw RunTimeError(ErrorNumber::OutOfMemory);
  }
}

}  // namespace tavimor
