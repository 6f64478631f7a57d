#pragma once

#include <fcntl.h>
#include <poll.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace tavimor::test {

/// A file descriptor that is closed when its owner goes.
class Descriptor {
 public:
  explicit Descriptor(int number = -1) : number_(number) {}
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  ~Descriptor() { close(); }

  int number() const { return number_; }
  void close() {
    if (number_ >= 0) ::close(std::exchange(number_, -1));
  }

 private:
  int number_;
};

/// Both ends of a pipe.
struct Pipe {
  Pipe() {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
    reading = Descriptor(ends[0]);
    writing = Descriptor(ends[1]);
  }

  Descriptor reading, writing;
};

/// Both ends of a pseudo-terminal: what is written to `terminal` is read from `master`.
struct PseudoTerminal {
  PseudoTerminal() : master(posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC)) {
    if (master.number() < 0 || grantpt(master.number()) != 0 || unlockpt(master.number()) != 0)
      throw std::runtime_error("no pseudo-terminal");
    terminal = Descriptor(open(ptsname(master.number()), O_RDWR | O_NOCTTY | O_CLOEXEC));
  }

  Descriptor master, terminal;
};

/// Everything that still comes from a descriptor. A terminal without writers reports an error, which ends it too.
inline std::string readAll(const Descriptor& descriptor) {
  std::string bytes;
  std::array<char, 4096> chunk;
  for (ssize_t count; (count = read(descriptor.number(), chunk.data(), chunk.size())) > 0;)
    bytes.append(chunk.data(), static_cast<std::size_t>(count));
  return bytes;
}

/// The next line with its LF, or what has come of it within ten seconds.
inline std::string readLine(const Descriptor& descriptor) {
  using namespace std::chrono_literals;
  const auto deadline = std::chrono::steady_clock::now() + 10s;
  std::string line;
  while (!line.ends_with('\n') && std::chrono::steady_clock::now() < deadline) {
    pollfd waiting{descriptor.number(), POLLIN, 0};
    if (poll(&waiting, 1, 100) <= 0) continue;
    char c = 0;
    if (read(descriptor.number(), &c, 1) != 1) break;
    line += c;
  }
  return line;
}

/// What a process has taken of the machine: the time of its processors, the most memory at a time.
struct Usage {
  double processorSeconds = 0.0;
  double megabytes = 0.0;
};

#ifdef __APPLE__
constexpr double kUnitsPerMegabyte = 1024 * 1024;  // the system tells bytes
#else
constexpr double kUnitsPerMegabyte = 1024;  // the system tells kilobytes
#endif

/// A child process whose standard streams are the given descriptors.
class Process {
 public:
  /// Runs `work` in the child and ends it with what that returns.
  template <class Work>
  Process(int in, int out, int err, Work work) : id_(fork()) {
    if (id_ < 0) throw std::runtime_error("no process");
    if (id_ != 0) return;
    dup2(in, STDIN_FILENO);
    dup2(out, STDOUT_FILENO);
    dup2(err, STDERR_FILENO);
    _exit(work());
  }

  void send(int signal) const { kill(id_, signal); }

  /// Waits for the end: the exit status, or -1 for a process that a signal has ended.
  int wait() {
    int status = 0;
    waitpid(id_, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

  /// The same, with what the process has taken of the machine.
  int wait(Usage& usage) {
    int status = 0;
    rusage taken{};
    wait4(id_, &status, 0, &taken);
    const auto seconds = [](const timeval& time) {
      return static_cast<double>(time.tv_sec) + 1e-6 * static_cast<double>(time.tv_usec);
    };
    usage.processorSeconds = seconds(taken.ru_utime) + seconds(taken.ru_stime);
    usage.megabytes = static_cast<double>(taken.ru_maxrss) / kUnitsPerMegabyte;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

 private:
  pid_t id_;
};

inline int execute(const std::string& program, const std::vector<std::string>& arguments) {
  std::vector<char*> words = {const_cast<char*>(program.c_str())};
  for (const std::string& argument : arguments) words.push_back(const_cast<char*>(argument.c_str()));
  words.push_back(nullptr);
  execv(program.c_str(), words.data());
  return 127;
}

struct Outcome {
  int exitCode;
  std::string out;
  std::string err;
};

/// Runs a program to its end with the given standard input.
inline Outcome runToEnd(const std::string& program, const std::vector<std::string>& arguments,
                        const std::string& input = {}) {
  const auto temporaryFile = [] {
    return std::unique_ptr<std::FILE, int (*)(std::FILE*)>(std::tmpfile(), std::fclose);
  };
  const auto in = temporaryFile(), out = temporaryFile(), err = temporaryFile();
  std::fwrite(input.data(), 1, input.size(), in.get());
  std::rewind(in.get());
  Process process(fileno(in.get()), fileno(out.get()), fileno(err.get()), [&] { return execute(program, arguments); });
  const auto content = [](std::FILE* file) {
    std::rewind(file);
    return readAll(Descriptor(dup(fileno(file))));
  };
  const int exitCode = process.wait();
  return {exitCode, content(out.get()), content(err.get())};
}

}  // namespace tavimor::test
