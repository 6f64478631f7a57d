#include "runtime/save_lock.h"

#include <cerrno>
#include <thread>

#include "platform/held_signals.h"
#include "runtime/run_time_error.h"

namespace tavimor {

namespace {

using namespace std::chrono_literals;

constexpr auto kUsualPatience = 5s;
constexpr auto kPause = 5ms;

}  // namespace

Patience usualPatience() { return Patience::clock::now() + kUsualPatience; }

SaveLock::SaveLock(const std::string& target, Patience patience) : lock_(target + ".tavimor-lock") {
  while (true) {
    const FileLock::Attempt attempt = lock_.tryAcquire();
    if (attempt == FileLock::Attempt::Acquired) return;
    if (attempt == FileLock::Attempt::Refused) throw fileError(errno, target);
    if (Patience::clock::now() >= patience || HeldSignals::endIsRequested())
      throw RunTimeError(ErrorNumber::FileAlreadyOpen, target, lock_.holder() + " is saving it");
    std::this_thread::sleep_for(kPause);
  }
}

}  // namespace tavimor
