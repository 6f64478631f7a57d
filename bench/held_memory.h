#pragma once

namespace tavimor::bench {

/// The most bytes that `new` had given and not got back at one time since the last call of startHolding, beyond those
/// of that moment. For programs that link held_memory.cpp.
void startHolding();
double mostHeldMegabytes();

}  // namespace tavimor::bench
