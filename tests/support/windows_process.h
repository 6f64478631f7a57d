#pragma once

#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>

#include <cstdio>
#include <string>
#include <vector>

#include "platform/files.h"
#include "platform/helper_program.h"
#include "support/files.h"
#include "support/temporary_folder.h"

namespace tavimor::test {

struct Outcome {
  int exitCode;
  std::string out;
  std::string err;
};

/// A standard stream of this process that leads to a file while the object lives.
class Redirection {
 public:
  Redirection(int stream, const std::string& path, int flags) : stream_(stream), before_(_dup(stream)) {
    const int file = _wopen(nativePath(path).c_str(), flags | _O_BINARY, _S_IREAD | _S_IWRITE);
    _dup2(file, stream_);
    _close(file);
  }
  Redirection(const Redirection&) = delete;
  Redirection& operator=(const Redirection&) = delete;
  ~Redirection() {
    _dup2(before_, stream_);
    _close(before_);
  }

 private:
  int stream_, before_;
};

/// Runs a program to its end with the given standard input.
inline Outcome runToEnd(const std::string& program, const std::vector<std::string>& arguments,
                        const std::string& input = {}) {
  const TemporaryFolder folder;
  writeBytes(folder / "in", input);
  std::fflush(nullptr);
  int exitCode = 0;
  {
    const Redirection in(0, folder / "in", _O_RDONLY), out(1, folder / "out", _O_WRONLY | _O_CREAT),
        err(2, folder / "err", _O_WRONLY | _O_CREAT);
    exitCode = runProgram(program, arguments);
  }
  return {exitCode, readBytes(folder / "out"), readBytes(folder / "err")};
}

}  // namespace tavimor::test
