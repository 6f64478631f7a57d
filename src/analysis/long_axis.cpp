#include "analysis/long_axis.h"

#include <algorithm>
#include <cmath>
#include <new>

#include "engine/parallel.h"
#include "runtime/run_time_error.h"

namespace tavimor {

namespace {

constexpr std::size_t kMostParts = 64;

// The sums of one part of an axis; parts are put together in their order.
struct PartSums {
  explicit PartSums(std::size_t terms, bool withProducts)
      : y(terms), products(withProducts ? terms * (terms + 1) / 2 : 0), largest(terms) {
    largest[0] = 1.0;
  }

  std::vector<ChainSum> y, products;
  ChainSum squares;
  std::vector<double> largest;
  double largestCoordinate = 0.0;
  bool exactFunction = true, exactValues = true;
};

// The buffers of one thread and what it does with a block of values.
class BlockSums {
 public:
  BlockSums(const AxisData& axis, const AxisBasis& basis, const FunctionValues& function, const PairSums& sums)
      : axis_(axis), basis_(basis), function_(function), sums_(sums), polynomials_(kMostDotted * axis.terms) {}

  void add(std::size_t first, std::size_t count, PartSums& part) {
    fillBasis(first, count, part);
    read(first, count, front_, part);
    const ConstPairs all = Pairs(polynomials_);
    for (std::size_t j = 0, n = 0; j < axis_.terms; ++j) {
      const ConstPairs polynomial = all + j * kMostDotted;
      sums_.dot(Pairs(front_), polynomial, kMostDotted, part.y[j].chains());
      for (std::size_t i = 0; i <= j; ++i, ++n)
        sums_.dot(all + i * kMostDotted, polynomial, kMostDotted, part.products[n].chains());
    }
  }

  // The block and the values opposite it, at which a polynomial is the same or, for odd numbers, the negative.
  void addWithOpposite(std::size_t first, std::size_t count, PartSums& part) {
    fillBasis(first, count, part);
    read(first, count, front_, part);
    const std::size_t opposite = axis_.count - first - count;
    // The value in the middle is not opposite to another one.
    const std::size_t shared = opposite < first + count ? count - 1 : count;
    read(axis_.count - first - shared, shared, back_, part);
    std::reverse(back_.high.begin(), back_.high.begin() + static_cast<std::ptrdiff_t>(shared));
    std::reverse(back_.low.begin(), back_.low.begin() + static_cast<std::ptrdiff_t>(shared));
    sums_.sumAndDifference(Pairs(front_), Pairs(back_), kMostDotted, even_, odd_);
    const ConstPairs all = Pairs(polynomials_);
    for (std::size_t j = 0; j < axis_.terms; ++j)
      sums_.dot(Pairs(j % 2 == 0 ? even_ : odd_), all + j * kMostDotted, kMostDotted, part.y[j].chains());
  }

 private:
  void fillBasis(std::size_t first, std::size_t count, PartSums& part) {
    part.exactValues = coordinates(axis_, basis_.frame, sums_, first, count, t_) && part.exactValues;
    for (std::size_t n = 0; n < kMostDotted; ++n) polynomials_.high[n] = n < count ? 1.0 : 0.0;
    for (std::size_t n = 0; n < count; ++n)
      part.largestCoordinate = std::max(part.largestCoordinate, std::fabs(t_.high[n]));
    fillPolynomials(basis_.recurrence, sums_, Pairs(t_), kMostDotted, polynomials_, part.largest);
  }

  void read(std::size_t first, std::size_t count, PairList& block, PartSums& part) {
    std::copy_n(function_.values + first, count, block.high.begin());
    std::fill(block.high.begin() + static_cast<std::ptrdiff_t>(count), block.high.end(), 0.0);
    part.exactFunction = finishBlock(function_, sums_, block, kMostDotted) && part.exactFunction;
    sums_.dot(Pairs(block), Pairs(block), kMostDotted, part.squares.chains());
  }

  const AxisData& axis_;
  const AxisBasis& basis_;
  const FunctionValues& function_;
  const PairSums& sums_;
  PairList t_{kMostDotted}, polynomials_, front_{kMostDotted}, back_{kMostDotted}, even_{kMostDotted},
      odd_{kMostDotted};
};

// The same parts for any number of threads.
std::vector<PartSums> sumParts(const AxisData& axis, const AxisBasis& basis, const FunctionValues& function,
                               const AnalysisOptions& options) {
  const bool folded = axis.equallySpaced();
  const std::size_t places = folded ? (axis.count + 1) / 2 : axis.count;
  const std::size_t blocks = (places + kMostDotted - 1) / kMostDotted;
  const std::size_t blocksPerPart = std::max<std::size_t>(16, (blocks + kMostParts - 1) / kMostParts);
  std::vector<PartSums> parts((blocks + blocksPerPart - 1) / blocksPerPart, PartSums(axis.terms, !folded));
  const double work = 40.0 * static_cast<double>(blocksPerPart * kMostDotted * axis.terms);
  inParallel(parts.size(), work, options.threads, [&](std::size_t firstPart, std::size_t endPart) {
    BlockSums block(axis, basis, function, pairSums(options.instructionSet));
    for (std::size_t p = firstPart; p < endPart; ++p) {
      goOn(options);
      const std::size_t end = std::min(places, (p + 1) * blocksPerPart * kMostDotted);
      for (std::size_t first = p * blocksPerPart * kMostDotted; first < end; first += kMostDotted) {
        const std::size_t count = std::min(kMostDotted, end - first);
        folded ? block.addWithOpposite(first, count, parts[p]) : block.add(first, count, parts[p]);
      }
      if (options.progress && firstPart == 0)
        options.progress(static_cast<double>(p + 1) / static_cast<double>(endPart));
    }
  });
  return parts;
}

PairMatrix productsOf(const std::vector<PartSums>& parts, std::size_t terms) {
  PairMatrix products(terms, terms);
  for (std::size_t j = 0, n = 0; j < terms; ++j)
    for (std::size_t i = 0; i <= j; ++i, ++n) {
      Pair sum;
      for (const PartSums& part : parts) sum = sum + part.products[n].total();
      products(i, j) = products(j, i) = sum;
    }
  return products;
}

PairMatrix knownProducts(const AxisData& axis) {
  PairMatrix products(axis.terms, axis.terms);
  const std::vector<Pair> norms = squaredNormsOfSpaced(axis.count, axis.terms);
  for (std::size_t j = 0; j < axis.terms; ++j) products(j, j) = norms[j];
  return products;
}

LongAxisSums putTogether(AxisBasis basis, const AxisData& axis, const std::vector<PartSums>& parts,
                         const AnalysisOptions& options) {
  LongAxisSums result{std::move(basis), std::vector<Pair>(axis.terms), {}, true};
  BasisMagnitudes magnitudes{0.0, std::vector<double>(axis.terms)};
  result.basis.exactValues = true;
  for (const PartSums& part : parts) {
    for (std::size_t j = 0; j < axis.terms; ++j) {
      result.y[j] = result.y[j] + part.y[j].total();
      magnitudes.largest[j] = part.largest[j] <= magnitudes.largest[j] ? magnitudes.largest[j] : part.largest[j];
    }
    result.sumOfSquares = result.sumOfSquares + part.squares.total();
    magnitudes.largestCoordinate = std::max(magnitudes.largestCoordinate, part.largestCoordinate);
    result.exactFunction = result.exactFunction && part.exactFunction;
    result.basis.exactValues = result.basis.exactValues && part.exactValues;
  }
  const bool spaced = axis.equallySpaced();
  const double normError =
      spaced ? 4 * static_cast<double>(axis.terms) * kPairError + sumError(axis.count) : sumError(axis.count);
  orthonormalise(result.basis, spaced ? knownProducts(axis) : productsOf(parts, axis.terms), normError, magnitudes,
                 options);
  return result;
}

}  // namespace

LongAxisSums longAxisSums(const AxisData& axis, const FunctionValues& function, const AnalysisOptions& options) {
  AxisBasis basis = framedBasis(axis);
  if (!basis.frame.usable) return {std::move(basis), {}, {}, false};
  try {
    basis.recurrence = axisRecurrence(axis, basis.frame, pairSums(options.instructionSet));
    const std::vector<PartSums> parts = sumParts(axis, basis, function, options);
    return putTogether(std::move(basis), axis, parts, options);
  } catch (const std::bad_alloc&) {
    throw RunTimeError(ErrorNumber::OutOfMemory);
  }
}

}  // namespace tavimor
