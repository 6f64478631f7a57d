#pragma once

#ifndef _WIN32

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <exception>
#include <functional>

namespace tavimor::test {

constexpr int kChildFailed = 99;  // the action ended in an exception

/// Runs the action in a child process and returns how that ended, as waitpid has it.
inline int statusOfChild(const std::function<void()>& action) {
  const pid_t child = fork();
  if (child == 0) {
    try {
      action();
      _exit(0);
    } catch (...) {
      _exit(kChildFailed);
    }
  }
  int status = 0;
  if (child < 0 || waitpid(child, &status, 0) != child) std::abort();
  return status;
}

/// The child's exit code: 0 unless the action calls _exit itself.
inline int exitCodeOfChild(const std::function<void()>& action) {
  const int status = statusOfChild(action);
  if (!WIFEXITED(status)) std::abort();
  return WEXITSTATUS(status);
}

/// Requests to end are what they are by default, also where the shell that started the tests ignores them.
inline void heedEndRequests() {
  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) std::signal(signal, SIG_DFL);
}

/// The signal that ends the child, 0 where none does.
inline int signalThatEnds(const std::function<void()>& action) {
  const int status = statusOfChild([&] {
    heedEndRequests();
    action();
  });
  return WIFSIGNALED(status) ? WTERMSIG(status) : 0;
}

/// In a child: gives up the rights of the superuser, who may write everywhere.
inline void becomeOrdinaryUser() {
  constexpr unsigned nobody = 65534;
  if (geteuid() == 0 && setuid(nobody) != 0) std::abort();
}

}  // namespace tavimor::test

#endif
