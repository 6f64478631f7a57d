#pragma once

#include <cstddef>

namespace tavimor {

/// Memory whose bytes are zero, and its way back. Much of it comes in large pages where the system has them: touching
/// each of its small ones for the first time would take longer than most work on it. Up to 0.7 MB more may be taken for
/// that. Null where there is not so much.
void* zeroedMemory(std::size_t bytes);
void releaseMemory(void* memory, std::size_t bytes);

/// Tells the system that this memory is used as a whole, so that it may come in large pages. Takes no more memory.
void preferLargePages(void* memory, std::size_t bytes);

/// Asks for the memory at this address ahead of its use. Only for speed: nothing else can be seen of it.
inline void prefetch(const void* address) {
#if defined(__GNUC__)
  __builtin_prefetch(address);
#else
  static_cast<void>(address);
#endif
}

}  // namespace tavimor
