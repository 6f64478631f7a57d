#include "analysis/pair_sums.h"

namespace tavimor {

extern const PairSums kPairSumsPlain;
#ifdef TAVIMOR_HAS_LANES
extern const PairSums kPairSumsBaseline;
#endif
#ifdef TAVIMOR_HAS_X86_LANES
extern const PairSums kPairSumsAvx2;
extern const PairSums kPairSumsAvx512;
#endif

Pair ChainSums::total(std::size_t n) const {
  Pair sum;
  for (std::size_t chain = n * kChains; chain < (n + 1) * kChains; ++chain)
    sum = sum + Pair(chains_.high[chain], chains_.low[chain]);
  return sum;
}

const PairSums& pairSums(InstructionSet set) {
#ifdef TAVIMOR_HAS_X86_LANES
  if (set == InstructionSet::Avx512) return kPairSumsAvx512;
  if (set == InstructionSet::Avx2 && __builtin_cpu_supports("fma")) return kPairSumsAvx2;
#endif
#ifdef TAVIMOR_HAS_LANES
  if (set != InstructionSet::Plain) return kPairSumsBaseline;
#endif
  static_cast<void>(set);
  return kPairSumsPlain;
}

}  // namespace tavimor
