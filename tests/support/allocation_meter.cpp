#include "support/allocation_meter.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<std::size_t> allocated{0};

}  // namespace

namespace tavimor::test {

void resetAllocations() { allocated = 0; }
std::size_t allocatedBytes() { return allocated; }

}  // namespace tavimor::test

void* operator new(std::size_t bytes) {
  allocated += bytes;
  if (void* memory = std::malloc(bytes)) return memory;
  throw std::bad_alloc();
}

void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
