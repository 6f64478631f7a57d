#pragma once

#include <cstddef>

namespace tavimor {

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
