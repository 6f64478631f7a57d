#pragma once

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

/// Makes pairs of values that were copied to the high parts of a block.
SeenValues finishBlock(const FunctionValues& function, const PairSums& sums, Pairs block, std::size_t count);

}  // namespace tavimor
