#pragma once

#include <cstddef>
#include <vector>

#include "analysis/pair.h"
#include "engine/fit_options.h"

namespace tavimor {

/// The loops of the second opinion over many numbers, in vector registers. Pairs stand in two arrays, high and low
/// parts. A sum is cut into kChains chains, whatever the registers hold, so every instruction set gives the same bits.
///
/// A chain adds at most kBlock products before it is added to its sum as a pair. Within a block the low parts are added
/// as doubles, whose rounding is at most 4,096 u^2 of the sum of the products' magnitudes, also where one factor comes
/// from sumAndDifference.
constexpr std::size_t kChains = 8;
constexpr std::size_t kBlock = 32;
constexpr std::size_t kMostDotted = kBlock * kChains;

constexpr std::size_t kWeights = 3;  // that doubleDots takes at once

constexpr std::size_t paddedToChains(std::size_t count) { return (count + kChains - 1) / kChains * kChains; }

/// The magnitudes among some doubles.
struct Magnitudes {
  bool allFinite = true;
  double largest = 0.0;
  double smallest = 0.0;  // of those that are not 0; 0 where all are
};

/// The ends of the range of some doubles; no numbers where one of them is infinite or none.
struct ValueRange {
  double least, most;
};

/// What is seen of some numbers while their low parts are made.
struct TypedValues {
  bool exact;     // all are decimals that their doubles hold exactly
  bool ordinary;  // so that none is 0, infinite or no number, or beyond 2^-64 .. 2^64
};

/// High and low parts of consecutive numbers.
struct ConstPairs {
  const double* high;
  const double* low;
};
struct Pairs {
  double* high;
  double* low;

  operator ConstPairs() const { return {high, low}; }
  Pairs operator+(std::size_t n) const { return {high + n, low + n}; }
};
inline ConstPairs operator+(ConstPairs pairs, std::size_t n) { return {pairs.high + n, pairs.low + n}; }

/// Numbers in two arrays of their own.
struct PairList {
  explicit PairList(std::size_t count) : high(count), low(count) {}
  operator Pairs() { return {high.data(), low.data()}; }

  std::vector<double> high, low;
};

/// Sums that `dots` adds to, each of kChains chains.
class ChainSums {
 public:
  explicit ChainSums(std::size_t count) : chains_(count * kChains) {}

  Pairs from(std::size_t first) { return Pairs(chains_) + first * kChains; }
  Pair total(std::size_t n) const;

 private:
  PairList chains_;
};

/// The numbers of one step of a three-term recurrence: next = scale * (t - shift) * current - back * previous.
struct RecurrenceStep {
  double shift;
  double scale;  // a power of two
  Pair back;
};

/// The routines for one instruction set. Counts named so are multiples of kChains.
struct PairSums {
  Magnitudes (*magnitudes)(const double* values, std::size_t anyCount);
  ValueRange (*range)(const double* values, std::size_t count);  // one at least

  /// The low parts of what the values stand for as typed; see typedValue.
  TypedValues (*typedLows)(const double* values, std::size_t anyCount, double* low);

  /// The same for rows of a table, which are copied side by side: number l of row r, from[rows[r] * stride + l], comes
  /// to place r * lanes + l.
  TypedValues (*typedRows)(const double* from, const std::size_t* rows, std::size_t rowCount, std::size_t stride,
                           std::size_t lanes, Pairs pairs);

  /// sums[c][l] += sum over the points of table[p][l] * matrix[p][c], for at most kBlock points. Both tables have
  /// `lanes` (a multiple of kChains) columns, the matrix has `matrixColumns`, of which the first `columns` count.
  void (*contract)(ConstPairs table, std::size_t points, std::size_t lanes, const Pair* matrix,
                   std::size_t matrixColumns, std::size_t columns, Pairs sums);

  /// The products of a with each of some columns, of which every kChains-th belongs to the same chain, at most
  /// kMostDotted of them: sums[c][chain] += sum of a[n] * columns[c * stride + n].
  void (*dots)(ConstPairs a, ConstPairs columns, std::size_t stride, std::size_t columnCount, std::size_t count,
               Pairs sums);

  /// The same with ones for columns: sums[l] += sum over the points of table[p][l].
  void (*addUp)(ConstPairs table, std::size_t points, std::size_t lanes, Pairs sums);

  /// The squares of some numbers, at most kMostDotted, in chains like those of `dots`.
  void (*squares)(ConstPairs values, std::size_t count, Pairs sums);

  /// Like `dots`, in doubles and with kWeights numbers in place of one a: sums[w * sumsStride + c * kChains + chain] +=
  /// sum of weights[w * count + n] * columns[c * stride + n].
  void (*doubleDots)(const double* weights, const double* columns, std::size_t stride, std::size_t columnCount,
                     std::size_t count, double* sums, std::size_t sumsStride);

  /// t = (x - middle) * scale * unit at `count` places; unit is a power of two.
  void (*coordinates)(ConstPairs x, const Pair& middle, const Pair& scale, double unit, std::size_t count, Pairs t);

  /// How far values lie from a grid, (x - (middle + t * width)) * unit. Returns the largest magnitude.
  double (*deviations)(ConstPairs x, const double* t, const Pair& middle, const Pair& width, double unit,
                       std::size_t count, double* result);

  /// Sums and differences of front * frontFactor and back * backFactor, in doubles.
  void (*foldWeights)(const double* front, const double* frontFactor, const double* back, const double* backFactor,
                      std::size_t count, double* sum, double* difference);

  /// One step of the recurrence at `count` places t. Returns the largest magnitude among the results.
  double (*advance)(const RecurrenceStep& step, ConstPairs t, ConstPairs current, ConstPairs previous,
                    std::size_t count, Pairs next);

  /// The step of Chebyshev's polynomials: next = twice * current - previous, with the error of `advance` at most. The
  /// low parts of `twice` may be left out where they are 0.
  void (*advanceChebyshev)(ConstPairs twice, ConstPairs current, ConstPairs previous, std::size_t count, Pairs next);

  /// sum = a + b and difference = a - b, number by number; they may take the place of a and b. The low parts are added
  /// as doubles and left as they are, at most 2 u (|a| + |b|): chains of products take such numbers. The error is at
  /// most 3 u^2 (|a| + |b|).
  void (*sumAndDifference)(ConstPairs a, ConstPairs b, std::size_t count, Pairs sum, Pairs difference);
};

/// The routines for a set, or for the next narrower one that this processor has with all that they need.
const PairSums& pairSums(InstructionSet set);

}  // namespace tavimor
