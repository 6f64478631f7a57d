#include "platform/held_signals.h"

#ifndef _WIN32
#include <array>
#include <atomic>
#include <csignal>
#include <mutex>
#endif

namespace tavimor {

#ifdef _WIN32

void reportFileSizeLimitAsError() {}

HeldSignals::HeldSignals() = default;
HeldSignals::~HeldSignals() = default;
bool HeldSignals::endIsRequested() { return false; }

#else

namespace {

constexpr std::array<int, 3> kHeld = {SIGINT, SIGTERM, SIGHUP};

std::atomic<int> request = 0;  // the signal that waits
static_assert(std::atomic<int>::is_always_lock_free);

std::mutex holdersMutex;
int holders = 0;
std::array<bool, kHeld.size()> isHeld{};

void noteRequest(int signal) { request = signal; }

bool wouldKill(int signal) {
  struct sigaction action = {};
  return sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_DFL;
}

void setHandler(int signal, void (*handler)(int)) {
  struct sigaction action = {};
  action.sa_handler = handler;
  action.sa_flags = SA_RESTART;
  sigaction(signal, &action, nullptr);
}

}  // namespace

void reportFileSizeLimitAsError() { setHandler(SIGXFSZ, SIG_IGN); }

HeldSignals::HeldSignals() {
  const std::lock_guard guard(holdersMutex);
  if (holders++ > 0) return;
  for (std::size_t n = 0; n < kHeld.size(); ++n) {
    isHeld[n] = wouldKill(kHeld[n]);
    if (isHeld[n]) setHandler(kHeld[n], noteRequest);
  }
}

HeldSignals::~HeldSignals() {
  const std::lock_guard guard(holdersMutex);
  if (--holders > 0) return;
  for (std::size_t n = 0; n < kHeld.size(); ++n)
    if (isHeld[n]) setHandler(kHeld[n], SIG_DFL);
  if (const int signal = request.exchange(0); signal != 0) raise(signal);
}

bool HeldSignals::endIsRequested() { return request != 0; }

#endif

}  // namespace tavimor
