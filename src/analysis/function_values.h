#pragma once

#include <span>

#include "analysis/pair_sums.h"
#include "analysis/typed_value.h"
#include "model/table4.h"

namespace tavimor {

/// The function table as the second opinion reads it: times 2^-exponent, which is 1 unless the values are very large or
/// very small, and without those that are next to nothing beside the largest one.
struct FunctionValues {
  const double* values = nullptr;
  Reading reading = Reading::AsTyped;
  int exponent = 0;
  bool asTheyAre = true;  // neither scaled nor without some

  bool areTyped() const { return asTheyAre && reading == Reading::AsTyped; }
};

/// What is seen of values while they are read. Numbers that need no care may be seen as if each were 1.
struct SeenValues {
  bool exact = true;  // all are doubles exactly
  Magnitudes magnitudes;

  void add(const SeenValues& others);
};

/// As they are. What is seen of them tells then whether they have to be read again in another way.
FunctionValues functionValues(const Table4& table, Reading reading);
FunctionValues functionValues(const Table4& table, Reading reading, const Magnitudes& magnitudes);

/// Some of the values as pairs. They may stand in the high parts of `room` already; high parts that serve as they are
/// stay where they are.
struct ReadValues {
  ConstPairs pairs;
  SeenValues seen;
};
ReadValues readValues(const FunctionValues& function, const PairSums& sums, const double* values, std::size_t count,
                      Pairs room);

/// The same for rows of a table that is read as typed and as it is: see PairSums::typedRows.
SeenValues readTypedRows(const PairSums& sums, const double* from, std::span<const std::size_t> rows,
                         std::size_t stride, std::size_t lanes, Pairs room);

}  // namespace tavimor
