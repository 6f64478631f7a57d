#pragma once

#include <cstddef>

namespace tavimor {

/// Tells the system that this memory is used as a whole, so that it may come in large pages. Takes no more memory.
void preferLargePages(void* memory, std::size_t bytes);

}  // namespace tavimor
