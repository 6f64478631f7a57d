#include "analysis/long_axis.h"

#include <algorithm>
#include <cmath>
#include <new>

#include "analysis/grid_axis.h"
#include "analysis/neighbour_products.h"
#include "runtime/run_time_error.h"

namespace tavimor {

namespace {

struct ListedSums : PartSums {
  explicit ListedSums(std::size_t terms) : PartSums(terms), products(terms * (terms + 1) / 2) {}

  ChainSums products;  // of the polynomials, lower triangle by row
};

bool sumsNeighboursOnly(std::size_t terms) { return terms <= kMostCompleted; }

// The first of the polynomials up to number j whose products with that one are summed.
std::size_t firstMultiplied(std::size_t j, std::size_t terms) { return sumsNeighboursOnly(terms) && j > 0 ? j - 1 : 0; }

// The buffers of one thread and what it does with a block of values.
class ListedBlocks {
 public:
  ListedBlocks(const AxisData& axis, const AxisBasis& basis, const FunctionValues& function, const PairSums& sums)
      : axis_(axis), basis_(basis), function_(function), sums_(sums), polynomials_(kMostDotted * axis.terms) {}

  void operator()(std::size_t first, std::size_t count, ListedSums& part) {
    fillBasis(first, count, part);
    readFunctionBlock(function_, sums_, first, count, block_, part);
    const ConstPairs all = Pairs(polynomials_);
    sums_.dots(Pairs(block_), all, kMostDotted, axis_.terms, kMostDotted, part.y.from(0));
    for (std::size_t j = 0; j < axis_.terms; ++j) {
      const std::size_t i = firstMultiplied(j, axis_.terms);
      sums_.dots(all + j * kMostDotted, all + i * kMostDotted, kMostDotted, j + 1 - i, kMostDotted,
                 part.products.from(j * (j + 1) / 2 + i));
    }
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
  PairList t_{kMostDotted}, polynomials_, block_{kMostDotted};
};

PairMatrix productsOf(const std::vector<ListedSums>& parts, std::size_t terms) {
  PairMatrix products(terms, terms);
  for (std::size_t j = 0, n = 0; j < terms; ++j)
    for (std::size_t i = 0; i <= j; ++i, ++n) {
      Pair sum;
      for (const ListedSums& part : parts) sum = sum + part.products.total(n);  // 0 where none was summed
      products(i, j) = products(j, i) = sum;
    }
  return products;
}

// All products, and the error of each beside the product of its norms.
double finishProducts(const LongAxisSums& sums, PairMatrix& products) {
  const double ofSums = sumError(sums.basis.count);
  if (!sumsNeighboursOnly(products.rows)) return ofSums;
  double least = products(0, 0).high, most = least;
  for (std::size_t j = 0; j < products.rows; ++j) {
    least = std::min(least, products(j, j).high);
    most = std::max(most, products(j, j).high);
  }
  const double ofPolynomials = 3 * normOfBasisErrors(sums.basis, sums.magnitudes) * std::sqrt(most);
  completeProducts(sums.basis.recurrence, products);
  const CompletionErrors errors = completionErrors(sums.basis.recurrence);
  return (errors.growth * (ofSums * most + ofPolynomials) + errors.rounding * most) / least;
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
  for (const ListedSums& part : parts) {
    result.add(part);
    for (std::size_t j = 0; j < axis.terms; ++j) result.y[j] = result.y[j] + part.y.total(j);
  }
  PairMatrix products = productsOf(parts, axis.terms);
  const double normError = finishProducts(result, products);
  orthonormalise(result.basis, products, normError, result.magnitudes, options);
  return result;
}

}  // namespace

LongAxisSums longAxisSums(const AxisData& axis, const FunctionValues& function, const AnalysisOptions& options) {
  try {
    if (auto onGrid = gridAxisSums(axis, function, options)) return std::move(*onGrid);
    return listedAxisSums(axis, function, options);
  } catch (const std::bad_alloc&) {
    throw RunTimeError(ErrorNumber::OutOfMemory);
  }
}

}  // namespace tavimor
