#include "cli/output.h"

#include <cstdio>

#include "runtime/text.h"

namespace tavimor {

void printLine(const std::string& line) {
  const std::size_t length = line.find_last_not_of(' ') + 1;  // 0 for a line of blanks
  printText(std::string_view(line).substr(0, length));
  printText("\n");
}

void complain(const std::string& path, const std::string& reason) {
  const std::string name = path.empty() ? "\"\"" : withEscapes(path);
  std::fprintf(stderr, "tavimor-cli: %s: %s\n", name.c_str(), withEscapes(reason).c_str());
}

}  // namespace tavimor
