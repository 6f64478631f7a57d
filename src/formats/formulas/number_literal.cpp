#include "formats/formulas/number_literal.h"

#include <array>
#include <charconv>
#include <cmath>

namespace tavimor {

namespace {

template <class... Form>
std::string converted(double value, Form... form) {
  std::array<char, 64> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value, form...);
  return {text.data(), end.ptr};
}

}  // namespace

std::string decimalLiteral(double value) {
  const double size = std::abs(value);
  const bool plain = size == 0.0 || (size >= 1e-4 && size < 1e15);
  std::string text = converted(value, plain ? std::chars_format::fixed : std::chars_format::scientific);
  if (text.find_first_of(".e") == std::string::npos) text += ".0";
  return text;
}

std::string fortranLiteral(double value) {
  std::string text = decimalLiteral(value);
  const std::size_t exponent = text.find('e');
  if (exponent == std::string::npos) return text + "d0";
  text[exponent] = 'd';
  return text;
}

std::string hexadecimalLiteral(double value) {
  return (std::signbit(value) ? "-0x" : "0x") + converted(std::abs(value), std::chars_format::hex);
}

}  // namespace tavimor
