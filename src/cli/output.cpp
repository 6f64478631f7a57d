#include "cli/output.h"

#include <cerrno>
#include <cstdio>

#include "runtime/run_time_error.h"
#include "runtime/text.h"

namespace tavimor {

namespace {

void require(bool written) {
  if (!written) throw fileError(errno, "standard output");
}

}  // namespace

void printText(const std::string& text) { require(std::fwrite(text.data(), 1, text.size(), stdout) == text.size()); }

void printLine(const std::string& line) {
  printText(line);
  require(std::fputc('\n', stdout) != EOF);
}

void finishOutput() { require(std::fflush(stdout) == 0); }

void complain(const std::string& path, const std::string& reason) {
  const std::string name = path.empty() ? "\"\"" : withEscapes(path);
  std::fprintf(stderr, "tavimor-cli: %s: %s\n", name.c_str(), withEscapes(reason).c_str());
}

}  // namespace tavimor
