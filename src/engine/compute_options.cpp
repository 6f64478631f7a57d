#include "engine/compute_options.h"

namespace tavimor {

bool hasInstructionSet(InstructionSet set) { return set == InstructionSet::Plain; }

InstructionSet widestInstructionSet() {
  for (const InstructionSet set : {InstructionSet::Avx512, InstructionSet::Avx2, InstructionSet::Baseline})
    if (hasInstructionSet(set)) return set;
  return InstructionSet::Plain;
}

}  // namespace tavimor
