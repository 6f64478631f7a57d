#include "script/identifier.h"

#include <algorithm>
#include <array>

namespace tavimor {

namespace {

constexpr std::array<std::string_view, 79> kReservedWords = {
    "and",      "as",     "boolean",    "byref",    "byte",    "byval",  "call",       "case",     "class", "const",
    "currency", "debug",  "dim",        "do",       "double",  "each",   "else",       "elseif",   "empty", "end",
    "endif",    "enum",   "eqv",        "event",    "exit",    "false",  "for",        "function", "get",   "goto",
    "if",       "imp",    "implements", "in",       "integer", "is",     "let",        "like",     "long",  "loop",
    "lset",     "me",     "mod",        "new",      "next",    "not",    "nothing",    "null",     "on",    "option",
    "optional", "or",     "paramarray", "preserve", "private", "public", "raiseevent", "redim",    "rem",   "resume",
    "rset",     "select", "set",        "shared",   "single",  "static", "stop",       "sub",      "then",  "to",
    "true",     "type",   "typeof",     "until",    "variant", "wend",   "while",      "with",     "xor",
};
static_assert(std::is_sorted(kReservedWords.begin(), kReservedWords.end()));

char lowered(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

}  // namespace

bool beginsIdentifier(char c) { return lowered(c) >= 'a' && lowered(c) <= 'z'; }

bool continuesIdentifier(char c) { return beginsIdentifier(c) || (c >= '0' && c <= '9') || c == '_'; }

bool isIdentifier(std::string_view text) {
  return !text.empty() && beginsIdentifier(text.front()) && std::all_of(text.begin(), text.end(), continuesIdentifier);
}

bool isReservedWord(std::string_view name) {
  return std::binary_search(kReservedWords.begin(), kReservedWords.end(), lowerCase(name));
}

std::string lowerCase(std::string_view text) {
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(), lowered);
  return lower;
}

}  // namespace tavimor
