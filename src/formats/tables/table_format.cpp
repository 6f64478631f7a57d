#include "formats/tables/table_format.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "runtime/numeral.h"
#include "runtime/text.h"

namespace tavimor {

namespace {

std::optional<double> wholeNumeral(std::string_view text) {
  const char* const last = text.data() + text.size();
  const Numeral numeral = scanNumeral(text.data(), last);
  if (text.empty() || numeral.end != last || !std::isfinite(numeral.value)) return std::nullopt;
  return numeral.value;
}

}  // namespace

std::optional<double> cellNumber(std::string_view cell, DecimalMark mark) {
  const std::string_view text = trimmed(cell);
  if (mark == DecimalMark::Point) return wholeNumeral(text);
  if (text.find('.') != std::string_view::npos) return std::nullopt;
  std::string pointed(text);
  std::replace(pointed.begin(), pointed.end(), ',', '.');
  return wholeNumeral(pointed);
}

std::optional<char> separatorFromText(const std::string& text) {
  constexpr std::array<std::pair<std::string_view, char>, 6> names = {
      {{"comma", ','}, {"semicolon", ';'}, {"tab", '\t'}, {"\\t", '\t'}, {"blank", kBlanks}, {"blanks", kBlanks}}};
  for (const auto& [name, separator] : names)
    if (text == name) return separator;
  constexpr std::string_view partsOfNumbers = "+-.\"\r\n";
  if (text.size() != 1 || std::isalnum(static_cast<unsigned char>(text[0])) != 0) return std::nullopt;
  if (partsOfNumbers.find(text[0]) != std::string_view::npos) return std::nullopt;
  return text[0];
}

}  // namespace tavimor
