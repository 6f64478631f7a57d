#include "runtime/standard_output.h"

#include <cerrno>
#include <cstdio>

#include "runtime/run_time_error.h"

namespace tavimor {

namespace {

void require(bool written) {
  if (!written) throw fileError(errno, "standard output");
}

}  // namespace

void printText(std::string_view text) { require(std::fwrite(text.data(), 1, text.size(), stdout) == text.size()); }

void finishOutput() { require(std::fflush(stdout) == 0); }

}  // namespace tavimor
