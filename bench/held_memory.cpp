#include "held_memory.h"

#include <malloc.h>

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<long> held{0}, most{0}, atStart{0};

void* counted(void* memory) {
  if (memory == nullptr) throw std::bad_alloc();
  held += static_cast<long>(malloc_usable_size(memory));
  most = std::max(most.load(), held.load());
  return memory;
}

}  // namespace

void* operator new(std::size_t size) { return counted(std::malloc(size)); }

void operator delete(void* memory) noexcept {
  if (memory != nullptr) held -= static_cast<long>(malloc_usable_size(memory));
  std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept { operator delete(memory); }

namespace tavimor::bench {

void startHolding() { most = atStart = held.load(); }

double mostHeldMegabytes() { return static_cast<double>(most - atStart) / (1 << 20); }

}  // namespace tavimor::bench
