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

const double* Stretch::of(const double* values, std::vector<double>& room, double filling) const {
  const double* from = values + first;
  if (direction == Forth && count == room.size()) return from;
  direction == Forth ? std::copy_n(from, count, room.begin()) : std::reverse_copy(from, from + count, room.begin());
  std::fill(room.begin() + static_cast<std::ptrdiff_t>(count), room.end(), filling);
  return room.data();
}

ConstPairs readFunctionBlock(const FunctionValues& function, const PairSums& sums, const Stretch& stretch,
                             PairList& room, PartSums& part) {
  const double* values = stretch.of(function.values, room.high, 0.0);
  const ReadValues block = readValues(function, sums, values, kMostDotted, room);
  part.function.add(block.seen);
  sums.squares(block.pairs, kMostDotted, part.squares.from(0));
  return block.pairs;
}

double leastNorm(const PairMatrix& products) {
  double least = products(0, 0).high;
  for (std::size_t j = 0; j < products.rows; ++j) least = std::min(least, products(j, j).high);
  return least;
}

}  // namespace tavimor
