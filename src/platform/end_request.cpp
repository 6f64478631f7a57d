#include "platform/end_request.h"

#ifndef _WIN32
#include <fcntl.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <csignal>
#endif

namespace tavimor {

#ifdef _WIN32

int watchEndRequests() { return -1; }

bool endIsRequested() { return false; }

#else

namespace {

int requests = -1;  // the writing end of the pipe
std::atomic<bool> isRequested = false;
static_assert(std::atomic<bool>::is_always_lock_free, "a signal handler must not wait");

void noteRequest(int /*signal*/) {
  const int errorBefore = errno;
  isRequested = true;
  const char note = 0;
  // A full pipe holds a request already.
  [[maybe_unused]] const ssize_t written = write(requests, &note, 1);
  errno = errorBefore;
}

void catchSignal(int signal) {
  struct sigaction action = {};
  if (sigaction(signal, nullptr, &action) != 0 || action.sa_handler == SIG_IGN) return;
  action = {};
  action.sa_handler = noteRequest;
  action.sa_flags = SA_RESTART;
  sigaction(signal, &action, nullptr);
}

}  // namespace

int watchEndRequests() {
  int ends[2];
  if (pipe(ends) != 0) return -1;
  for (const int end : ends) {
    fcntl(end, F_SETFD, FD_CLOEXEC);
    fcntl(end, F_SETFL, O_NONBLOCK);
  }
  requests = ends[1];
  isRequested = false;
  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) catchSignal(signal);
  return ends[0];
}

bool endIsRequested() { return isRequested; }

#endif

}  // namespace tavimor
