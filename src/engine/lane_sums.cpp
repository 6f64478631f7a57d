#include "engine/lane_sums.h"

namespace tavimor {

#ifdef TAVIMOR_HAS_LANES
extern const LaneSums kLaneSumsBaseline;
#endif
#ifdef TAVIMOR_HAS_X86_LANES
extern const LaneSums kLaneSumsAvx2;
extern const LaneSums kLaneSumsAvx512;
#endif

const LaneSums* laneSums(InstructionSet set) {
  switch (set) {
    case InstructionSet::Plain: return nullptr;
#ifdef TAVIMOR_HAS_LANES
    case InstructionSet::Baseline: return &kLaneSumsBaseline;
#endif
#ifdef TAVIMOR_HAS_X86_LANES
    case InstructionSet::Avx2: return &kLaneSumsAvx2;
    case InstructionSet::Avx512: return &kLaneSumsAvx512;
#endif
    default: return nullptr;
  }
}

bool hasInstructionSet(InstructionSet set) {
  switch (set) {
    case InstructionSet::Plain:
#ifdef TAVIMOR_HAS_LANES
    case InstructionSet::Baseline:
#endif
      return true;
#ifdef TAVIMOR_HAS_X86_LANES
    case InstructionSet::Avx2: return __builtin_cpu_supports("avx2");
    case InstructionSet::Avx512: return __builtin_cpu_supports("avx512f");
#endif
    default: return false;
  }
}

InstructionSet widestInstructionSet() {
  for (const InstructionSet set : {InstructionSet::Avx512, InstructionSet::Avx2, InstructionSet::Baseline})
    if (hasInstructionSet(set)) return set;
  return InstructionSet::Plain;
}

}  // namespace tavimor
