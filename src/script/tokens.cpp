#include "script/tokens.h"

#include <algorithm>
#include <string>

#include "runtime/numeral.h"
#include "runtime/run_time_error.h"
#include "script/identifier.h"
#include "script/script_failure.h"

namespace tavimor {

namespace {

constexpr std::string_view kBlanks = " \t\r\n";
constexpr std::string_view kSymbols = "+-*/\\^(),";

bool isDigit(char c) { return c >= '0' && c <= '9'; }

bool beginsNumber(std::string_view rest) {
  return isDigit(rest.front()) || (rest.front() == '.' && rest.size() > 1 && isDigit(rest[1]));
}

std::size_t nameLength(std::string_view rest) {
  const auto end = [&](std::size_t from) {
    return std::find_if_not(rest.begin() + from, rest.end(), continuesIdentifier) - rest.begin();
  };
  const auto length = static_cast<std::size_t>(end(0));
  const bool hasMember = length + 1 < rest.size() && rest[length] == '.' && beginsIdentifier(rest[length + 1]);
  return hasMember ? static_cast<std::size_t>(end(length + 1)) : length;
}

// Digits that are no numeral are a number too large for a double.
std::size_t numberLength(std::string_view rest) {
  const Numeral numeral = scanNumeral(rest.data(), rest.data() + rest.size());
  if (numeral.end == rest.data()) throw ScriptFailure(description(ErrorNumber::Overflow));
  return static_cast<std::size_t>(numeral.end - rest.data());
}

std::string_view firstCharacter(std::string_view rest) {
  std::size_t length = 1;
  while (length < rest.size() && (static_cast<unsigned char>(rest[length]) & 0xC0) == 0x80) ++length;
  return rest.substr(0, length);
}

Token firstToken(std::string_view rest) {
  if (beginsIdentifier(rest.front())) return {TokenKind::Name, rest.substr(0, nameLength(rest))};
  if (beginsNumber(rest)) return {TokenKind::Number, rest.substr(0, numberLength(rest))};
  if (kSymbols.find(rest.front()) != kSymbols.npos) return {TokenKind::Symbol, rest.substr(0, 1)};
  throw ScriptFailure("Syntax error at '" + std::string(firstCharacter(rest)) + "'");
}

}  // namespace

std::vector<Token> tokens(std::string_view expression) {
  std::vector<Token> found;
  for (std::size_t at = 0; (at = expression.find_first_not_of(kBlanks, at)) != expression.npos;) {
    found.push_back(firstToken(expression.substr(at)));
    at += found.back().text.size();
  }
  return found;
}

}  // namespace tavimor
