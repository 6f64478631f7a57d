#include "analysis/axis_parts.h"

namespace tavimor {

LongAxisSums::LongAxisSums(const AxisBasis& emptyBasis)
    : magnitudes(emptyBasis.terms), basis(emptyBasis), y(emptyBasis.terms) {
  basis.exactValues = true;
}

void LongAxisSums::add(const PartSums& part) {
  for (std::size_t j = 0; j < part.largest.size(); ++j)  // a NaN, which is not the larger of two, must not be lost
    magnitudes.largest[j] = part.largest[j] <= magnitudes.largest[j] ? magnitudes.largest[j] : part.largest[j];
  magnitudes.largestCoordinate = std::max(magnitudes.largestCoordinate, part.largestCoordinate);
  for (std::size_t j = 0; j < y.size(); ++j) y[j] = y[j] + part.y.total(j);
  sumOfSquares = sumOfSquares + part.squares.total(0);
  function.add(part.function);
  basis.exactValues = basis.exactValues && part.exactValues;
}

void readFunctionBlock(const FunctionValues& function, const PairSums& sums, const Stretch& stretch, PairList& block,
                       PartSums& part) {
  stretch.copy(function.values, block.high.data());
  std::fill(block.high.begin() + static_cast<std::ptrdiff_t>(stretch.count), block.high.end(), 0.0);
  part.function.add(finishBlock(function, sums, block, kMostDotted));
  sums.squares(Pairs(block), kMostDotted, part.squares.from(0));
}

double leastNorm(const PairMatrix& products) {
  double least = products(0, 0).high;
  for (std::size_t j = 0; j < products.rows; ++j) least = std::min(least, products(j, j).high);
  return least;
}

}  // namespace tavimor
