#pragma once

#include <functional>

namespace tavimor {

/// Instruction sets that the sums can use. Every one gives the same bits.
enum class InstructionSet { Plain, Baseline, Avx2, Avx512 };

/// The widest set that this processor has, and whether it has a given one.
InstructionSet widestInstructionSet();
bool hasInstructionSet(InstructionSet set);

/// Whether a fit holds its values at the points of the grid (FitGrid) when it is done. The statistics need them only
/// for a moment; without them a fit takes half the memory, and less time.
enum class FittedValues { Kept, PassedThrough };

/// How a fit is to be run; the other results do not depend on it.
struct FitOptions {
  int threads = 0;  // 0: as many as pay
  InstructionSet instructionSet = widestInstructionSet();
  FittedValues fittedValues = FittedValues::Kept;
  std::function<void(double)> progress;  // told the share of the work that is done, 0..1
  std::function<bool()> isCalledOff;     // asked now and then, from any thread of the fit: true ends it without result
};

}  // namespace tavimor
