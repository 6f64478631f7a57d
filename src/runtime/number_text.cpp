#include "runtime/number_text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace tavimor {

namespace {

constexpr int kSignificantDigits = 15;  // the most that always survive text -> double -> text:
static_assert(std::numeric_limits<double>::digits10 == kSignificantDigits);

std::string withoutLeadingZero(std::string text) {
  const std::size_t zero = text.starts_with('-') ? 1 : 0;
  if (text.compare(zero, 2, "0.") == 0) text.erase(zero, 1);
  return text;
}

std::string inPrintForm(std::string text) {
  if (!text.starts_with('-')) text.insert(text.begin(), ' ');
  text.push_back(' ');
  return text;
}

}  // namespace

std::string numberText(double value) {
  if (std::isnan(value)) return "NAN";
  if (std::isinf(value)) return value < 0 ? "-INF" : "INF";
  if (value == 0.0) return "0";
  std::array<char, 32> buffer{};
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::general,
                                 kSignificantDigits);
  std::string text(buffer.data(), end.ptr);
  if (const std::size_t exponent = text.find('e'); exponent != std::string::npos) text[exponent] = 'E';
  return text;
}

std::string numberText(Long value) { return std::to_string(value); }

std::string writtenNumber(double value) { return withoutLeadingZero(numberText(value)); }
std::string writtenNumber(Long value) { return numberText(value); }

std::string printedNumber(double value) { return inPrintForm(writtenNumber(value)); }
std::string printedNumber(Long value) { return inPrintForm(writtenNumber(value)); }

}  // namespace tavimor
