#include "script/script_failure.h"

namespace tavimor {

namespace {

constexpr std::size_t kMostBytes = 80;

bool continuesCharacter(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

}  // namespace

std::string shortened(std::string_view text) {
  if (text.size() <= kMostBytes) return std::string(text);
  std::size_t length = kMostBytes;
  while (length > 0 && continuesCharacter(text[length])) --length;
  return std::string(text.substr(0, length)) + "...";
}

}  // namespace tavimor
