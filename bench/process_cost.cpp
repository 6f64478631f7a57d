// Runs a program, its standard output thrown away, and prints the seconds from its start to its end, the kilobytes that
// it held at most and the seconds of processor time that it took. A program of its own, and a small one: the system
// counts the memory of whoever starts a program as that program's.
//   process-cost PROGRAM [ARGUMENT...]
#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <time.h>

#include <cstdio>

extern char** environ;

namespace {

double now() {
  timespec time{};
  clock_gettime(CLOCK_MONOTONIC, &time);
  return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

double secondsOf(const timeval& time) {
  return static_cast<double>(time.tv_sec) + 1e-6 * static_cast<double>(time.tv_usec);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) return 2;
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
  const double start = now();
  pid_t child = 0;
  if (posix_spawn(&child, argv[1], &actions, nullptr, argv + 1, environ) != 0) return 1;
  int status = 0;
  rusage usage{};
  if (wait4(child, &status, 0, &usage) != child || status != 0) return 1;
  const double end = now();
  const double processor = secondsOf(usage.ru_utime) + secondsOf(usage.ru_stime);
  std::printf("%.9f %ld %.6f\n", end - start, usage.ru_maxrss, processor);
}
