#include "platform/memory.h"

#ifdef __linux__
#include <sys/mman.h>

#include <cstdint>
#endif

namespace tavimor {

#ifdef __linux__

void preferLargePages(void* memory, std::size_t bytes) {
  constexpr std::uintptr_t page = std::uintptr_t{2} << 20;
  const auto first = (reinterpret_cast<std::uintptr_t>(memory) + page - 1) / page * page;
  const auto end = (reinterpret_cast<std::uintptr_t>(memory) + bytes) / page * page;
  if (first < end) madvise(reinterpret_cast<void*>(first), end - first, MADV_HUGEPAGE);  // advice: may be refused
}

#else

void preferLargePages(void*, std::size_t) {}

#endif

}  // namespace tavimor
