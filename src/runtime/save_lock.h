#pragma once

#include <chrono>
#include <string>

#include "platform/file_lock.h"

namespace tavimor {

/// The moment at which a save that waits for another one to end has waited long enough.
using Patience = std::chrono::steady_clock::time_point;
Patience usualPatience();

/// Keeps other programs from replacing a file for as long as it lives, by a lock file beside it.
/// Errors: a RunTimeError with the path; FileAlreadyOpen, with who is in the way, where that lasts too long.
class SaveLock {
 public:
  SaveLock(const std::string& target, Patience patience);

 private:
  FileLock lock_;
};

}  // namespace tavimor
