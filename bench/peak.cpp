#include "peak.h"

double peakBaseline();
double peakAvx2();
double peakAvx512();

namespace tavimor::bench {

double multiplyAddPeak(InstructionSet set) {
  if (!hasInstructionSet(set)) return 0.0;
  switch (set) {
    case InstructionSet::Plain: return 0.0;
    case InstructionSet::Baseline: return peakBaseline();
    case InstructionSet::Avx2: return peakAvx2();
    case InstructionSet::Avx512: return peakAvx512();
  }
  return 0.0;
}

}  // namespace tavimor::bench
