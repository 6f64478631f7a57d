#pragma once

#include <cstddef>
#include <functional>

namespace tavimor {

/// Calls `body(first, end)` for consecutive parts of 0..count, each in a thread of its own, and waits for all of them.
/// Where no thread is to be had the calling one does the work.
/// `workOfOne` is the number of multiplications and additions that one of `count` takes: with less than some 5e7 in all
/// a second thread does not pay. A `threads` of 0 chooses by that, any other number is taken as it is.
/// An exception of one part is thrown here when all parts have ended.
void inParallel(std::size_t count, double workOfOne, int threads,
                const std::function<void(std::size_t first, std::size_t end)>& body);

}  // namespace tavimor
