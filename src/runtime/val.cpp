#include "runtime/val.h"

#include <algorithm>

#include "runtime/numeral.h"

namespace tavimor {

namespace {

constexpr std::string_view kBlanks = " \t\r\n";

std::string_view withoutLeadingBlanks(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
  return text;
}

}  // namespace

double Val(std::string_view text) {
  const std::string_view numeral = withoutLeadingBlanks(text);
  return scanNumeral(numeral.data(), numeral.data() + numeral.size()).value;
}

Long ValLong(std::string_view text) { return toLong(Val(text)); }

bool IsNumeric(std::string_view text) {
  const std::string_view rest = withoutLeadingBlanks(text);
  const char* last = rest.data() + rest.size();
  const char* end = scanNumeral(rest.data(), last).end;
  const bool hasDigit = std::any_of(rest.data(), end, [](char c) { return c >= '0' && c <= '9'; });
  return hasDigit && withoutLeadingBlanks(std::string_view(end, static_cast<std::size_t>(last - end))).empty();
}

}  // namespace tavimor
