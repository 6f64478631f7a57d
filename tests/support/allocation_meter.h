#pragma once

#include <cstddef>

namespace tavimor::test {

/// Memory that `new` has given since the last reset, in a program that links allocation_meter.cpp.
void resetAllocations();
std::size_t allocatedBytes();

}  // namespace tavimor::test
