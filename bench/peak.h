#pragma once

#include "engine/fit_options.h"

namespace tavimor::bench {

/// Multiplications with an addition each, per second, of one thread at its best in the given instruction set, without
/// fused operations: independent chains in registers, no memory. 0 where the set is not present.
double multiplyAddPeak(InstructionSet set);

}  // namespace tavimor::bench
