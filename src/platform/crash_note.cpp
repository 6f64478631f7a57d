#include "platform/crash_note.h"

#ifndef _WIN32
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <csignal>
#endif

namespace tavimor {

#ifdef _WIN32

void watchCrashes() {}

void setCrashNote(const std::string& /*path*/) {}

#else

namespace {

constexpr std::array<int, 5> kFaults = {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT};
constexpr std::size_t kLongestPath = 4096;
constexpr std::size_t kStackOfHandler = 65536;  // a stack that has overflown holds no handler

std::array<struct sigaction, kFaults.size()> before{};
std::array<char, kLongestPath> notePath{};
std::atomic<bool> hasPath = false;
static_assert(std::atomic<bool>::is_always_lock_free, "a signal handler must not wait");

// Nothing but what a signal handler may call.
void leaveNote() {
  if (!hasPath.exchange(false)) return;
  const int file = open(notePath.data(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
  if (file < 0) return;
  [[maybe_unused]] const ssize_t written = write(file, kCrashNote, sizeof kCrashNote - 1);
  close(file);
}

// The signal comes again as soon as this returns, and meets whoever had it before.
void noteCrash(int signal) {
  leaveNote();
  const auto* fault = std::find(kFaults.begin(), kFaults.end(), signal);
  sigaction(signal, &before[static_cast<std::size_t>(fault - kFaults.begin())], nullptr);
  raise(signal);
}

void takeOwnStack() {
  static std::array<char, kStackOfHandler> memory;
  stack_t stack = {};
  stack.ss_sp = memory.data();
  stack.ss_size = memory.size();
  sigaltstack(&stack, nullptr);
}

}  // namespace

void watchCrashes() {
  takeOwnStack();
  for (std::size_t n = 0; n < kFaults.size(); ++n) {
    struct sigaction action = {};
    action.sa_handler = noteCrash;
    action.sa_flags = SA_ONSTACK;
    sigaction(kFaults[n], &action, &before[n]);
  }
}

void setCrashNote(const std::string& path) {
  hasPath = false;
  if (path.empty() || path.size() >= notePath.size()) return;
  notePath[path.copy(notePath.data(), path.size())] = '\0';
  hasPath = true;
}

#endif

}  // namespace tavimor
