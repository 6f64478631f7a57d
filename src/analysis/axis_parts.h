#pragma once

#include <algorithm>
#include <vector>

#include "analysis/axis_basis.h"
#include "analysis/function_values.h"
#include "engine/parallel.h"

namespace tavimor {

/// From so many values on, the one axis of a problem of one variable is streamed through its recurrence: nothing of
/// the size values * terms is stored.
constexpr std::size_t kLongAxis = 16384;

/// What every pass over a long axis sums, of one part of it; parts are put together in their order.
struct PartSums {
  explicit PartSums(std::size_t terms) : y(terms), squares(1), largest(terms) { largest[0] = 1.0; }

  ChainSums y, squares;
  std::vector<double> largest;
  double largestCoordinate = 0.0;
  bool exactValues = true;
  SeenValues function;
};

/// What one pass over a long axis and its function gives.
struct LongAxisSums {
  BasisMagnitudes magnitudes;
  AxisBasis basis;      // without the values
  std::vector<Pair> y;  // the inner products of the polynomials and the function
  Pair sumOfSquares;
  SeenValues function;

  explicit LongAxisSums(const AxisBasis& emptyBasis);

  /// Adds what every pass sums; y comes in the order of the part.
  void add(const PartSums& part);
};

/// Some consecutive values, in their order or from the last one to the first.
struct Stretch {
  enum Direction { Forth, Back };

  std::size_t first, count;
  Direction direction = Forth;

  /// Those of all values that it means, as many as `room` has. Unless they stand in this order they are copied there,
  /// with `filling` behind the end.
  const double* of(const double* values, std::vector<double>& room, double filling) const;
};

/// A block of the function, with 0 behind its end; its squares are added to those of the part.
ConstPairs readFunctionBlock(const FunctionValues& function, const PairSums& sums, const Stretch& stretch,
                             PairList& room, PartSums& part);

/// The first polynomial at a block of kMostDotted places: 1, and 0 behind the first `count`, where so are all others.
inline void beginPolynomials(std::size_t count, PairList& polynomials) {
  std::fill_n(polynomials.high.begin(), count, 1.0);
  std::fill_n(polynomials.high.begin() + static_cast<std::ptrdiff_t>(count), kMostDotted - count, 0.0);
}

/// Where polynomial j of `terms` stands when the even ones come first.
constexpr std::size_t placeEvenFirst(std::size_t j, std::size_t terms) {
  return j / 2 + (j % 2 == 0 ? 0 : (terms + 1) / 2);
}

/// The smallest inner product of a polynomial with itself.
double leastNorm(const PairMatrix& products);

/// A long axis cut into parts of whole blocks: the same parts for any number of threads.
struct AxisParts {
  explicit AxisParts(std::size_t countOfPlaces)
      : places(countOfPlaces), blocksOfPart(std::max<std::size_t>(16, (blocks() + kMostParts - 1) / kMostParts)) {}

  std::size_t blocks() const { return (places + kMostDotted - 1) / kMostDotted; }
  std::size_t count() const { return (blocks() + blocksOfPart - 1) / blocksOfPart; }

  static constexpr std::size_t kMostParts = 64;
  std::size_t places, blocksOfPart;
};

/// Fills the sums of each part: makeWorker() gives each thread a function add(first, count, sums) for the blocks.
/// Errors: AnalysisCancelled.
template <class Sums, class MakeWorker>
void sumParts(const AxisParts& cut, double workOfPlace, const AnalysisOptions& options, std::vector<Sums>& parts,
              MakeWorker makeWorker) {
  const std::size_t placesOfPart = cut.blocksOfPart * kMostDotted;
  inParallel(parts.size(), workOfPlace * static_cast<double>(placesOfPart), options.threads,
             [&](std::size_t firstPart, std::size_t endPart) {
               auto add = makeWorker();
               for (std::size_t p = firstPart; p < endPart; ++p) {
                 goOn(options);
                 const std::size_t end = std::min(cut.places, (p + 1) * placesOfPart);
                 for (std::size_t first = p * placesOfPart; first < end; first += kMostDotted)
                   add(first, std::min(kMostDotted, end - first), parts[p]);
                 if (options.progress && firstPart == 0)
                   options.progress(static_cast<double>(p + 1) / static_cast<double>(endPart));
               }
             });
}

}  // namespace tavimor
