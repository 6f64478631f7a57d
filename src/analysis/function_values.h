#pragma once

#include "analysis/pair_sums.h"
#include "analysis/typed_value.h"
#include "model/table4.h"

namespace tavimor {

/// The function table as the second opinion reads it: times 2^-exponent, which is 1 unless the values are very large or
/// very small, and without those that are next to nothing beside the largest one.
struct FunctionValues {
  const double* values = nullptr;
  std::size_t count = 0;
  Reading reading = Reading::AsTyped;
  bool allFinite = true;
  int exponent = 0;
  bool asTheyAre = true;  // neither scaled nor without some
};

FunctionValues functionValues(const Table4& table, Reading reading, const PairSums& sums);

/// Makes pairs of values that were copied to the high parts of a block. True where all are doubles exactly.
bool finishBlock(const FunctionValues& function, const PairSums& sums, Pairs block, std::size_t count);

}  // namespace tavimor
