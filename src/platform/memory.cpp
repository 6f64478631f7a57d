#include "platform/memory.h"

#include <cstdint>
#include <cstdlib>

// The sanitizers watch over the memory of the library alone.
#if defined(__linux__) && !defined(TAVIMOR_SANITIZED)
#define TAVIMOR_MAPS_MEMORY
#include <sys/mman.h>
#endif

namespace tavimor {

#ifdef TAVIMOR_MAPS_MEMORY

namespace {

constexpr std::size_t kLargePage = std::size_t{2} << 20;
constexpr std::size_t kSmallPages = std::size_t{64} << 10;  // whole ones, whatever their size

std::size_t roundedUp(std::size_t bytes, std::size_t unit) { return (bytes + unit - 1) / unit * unit; }

std::size_t bytesToLargePage(const void* memory) {
  return (kLargePage - reinterpret_cast<std::uintptr_t>(memory) % kLargePage) % kLargePage;
}

// A rest that fills most of a large page takes one, a smaller rest small pages. Below a large page there are none.
std::size_t mappedBytes(std::size_t bytes) {
  const std::size_t inLargePages = roundedUp(bytes, kLargePage);
  return inLargePages - bytes <= kLargePage / 3 ? inLargePages : roundedUp(bytes, kSmallPages);
}

bool isMapped(std::size_t bytes) { return mappedBytes(bytes) >= kLargePage; }

}  // namespace

// A mapping can begin anywhere: it is made a page longer, and what stands before and behind the large pages goes.
void* zeroedMemory(std::size_t bytes) {
  if (!isMapped(bytes)) return std::calloc(bytes, 1);
  const std::size_t wanted = mappedBytes(bytes);
  void* mapping = mmap(nullptr, wanted + kLargePage, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  if (mapping == MAP_FAILED) return nullptr;
  const std::size_t before = bytesToLargePage(mapping);
  char* memory = static_cast<char*>(mapping) + before;
  if (before > 0) munmap(mapping, before);
  if (before < kLargePage) munmap(memory + wanted, kLargePage - before);
  preferLargePages(memory, wanted);
  return memory;
}

void releaseMemory(void* memory, std::size_t bytes) {
  if (isMapped(bytes))
    munmap(memory, mappedBytes(bytes));
  else
    std::free(memory);
}

void preferLargePages(void* memory, std::size_t bytes) {
  const std::size_t before = bytesToLargePage(memory);
  if (before + kLargePage > bytes) return;
  const std::size_t whole = (bytes - before) / kLargePage * kLargePage;
  madvise(static_cast<char*>(memory) + before, whole, MADV_HUGEPAGE);  // advice: may be refused
}

#else

void* zeroedMemory(std::size_t bytes) { return std::calloc(bytes, 1); }

void releaseMemory(void* memory, std::size_t) { std::free(memory); }

void preferLargePages(void*, std::size_t) {}

#endif

}  // namespace tavimor
