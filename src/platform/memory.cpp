#include "platform/memory.h"

#ifdef __linux__
#include <sys/mman.h>

#include <cstdint>
#endif

namespace tavimor {

#ifdef __linux__

void preferLargePages(void* memory, std::size_t bytes) {
  constexpr std::size_t page = std::size_t{2} << 20;
  const std::size_t before = (page - reinterpret_cast<std::uintptr_t>(memory) % page) % page;
  if (before + page > bytes) return;
  const std::size_t whole = (bytes - before) / page * page;
  madvise(static_cast<char*>(memory) + before, whole, MADV_HUGEPAGE);  // advice: may be refused
}

#else

void preferLargePages(void*, std::size_t) {}

#endif

}  // namespace tavimor
