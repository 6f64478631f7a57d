#include "runtime/usage_text.h"

#include "runtime/text.h"

namespace tavimor {

std::string unexpectedArgument(std::string_view word) { return "unexpected argument \"" + withEscapes(word) + '"'; }

std::string usageLine(std::string_view program, std::string_view complaint, std::string_view call) {
  return std::string(program) + ": " + std::string(complaint) + "; see " + std::string(call) + " --help\n";
}

}  // namespace tavimor
