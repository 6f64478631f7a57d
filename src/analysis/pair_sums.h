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
/// as doubles, whose rounding is at most 4,096 u^2 of the sum of the products' magnitudes.
constexpr std::size_t kChains = 8;
constexpr std::size_t kBlock = 32;
constexpr std::size_t kMostDotted = kBlock * kChains;

constexpr std::size_t paddedToChains(std::size_t count) { return (count + kChains - 1) / kChains * kChains; }

/// The magnitudes among some doubles.
struct Magnitudes {
  bool allFinite = true;
  double largest = 0.0;
  double smallest = 0.0;  // of those that are not 0; 0 where all are
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

/// A sum that `dot` adds to.
class ChainSum {
 public:
  Pairs chains() { return {high_, low_}; }
  Pair total() const;

 private:
  double high_[kChains] = {};
  double low_[kChains] = {};
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

  /// The low parts of what the values stand for as typed; see typedValue. True where all are decimals that their
  /// doubles hold exactly.
  bool (*typedLows)(const double* values, std::size_t anyCount, double* low);

  /// sums[c][l] += sum over the points of table[p][l] * matrix[p][c], for at most kBlock points. Both tables have
  /// `lanes` (a multiple of kChains) columns, the matrix has `matrixColumns`, of which the first `columns` count.
  void (*contract)(ConstPairs table, std::size_t points, std::size_t lanes, const Pair* matrix,
                   std::size_t matrixColumns, std::size_t columns, Pairs sums);

  /// sums[chain] += the products of a and b, of which every kChains-th belongs to the same chain; at most
  /// kMostDotted of them.
  void (*dot)(ConstPairs a, ConstPairs b, std::size_t count, Pairs sums);

  /// One step of the recurrence at `count` places t. Returns the largest magnitude among the results.
  double (*advance)(const RecurrenceStep& step, ConstPairs t, ConstPairs current, ConstPairs previous,
                    std::size_t count, Pairs next);

  /// sum = a + b and difference = a - b, number by number.
  void (*sumAndDifference)(ConstPairs a, ConstPairs b, std::size_t count, Pairs sum, Pairs difference);
};

/// The routines for a set, or for the next narrower one that this processor has with all that they need.
const PairSums& pairSums(InstructionSet set);

}  // namespace tavimor
