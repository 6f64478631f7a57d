#pragma once

#include <future>
#include <system_error>

namespace tavimor {

/// Work that is done beside the caller's, or, where no thread is to be had, when its result is asked for.
template <class Work>
auto startBeside(const Work& work) {
  try {
    return std::async(std::launch::async, work);
  } catch (const std::system_error&) {
    return std::async(std::launch::deferred, work);
  }
}

}  // namespace tavimor
