#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tavimor {

enum class DecimalMark { Point, Comma };

/// Runs of blanks and tabs that separate columns.
constexpr char kBlanks = ' ';

/// How the cells of a table are written.
struct TableFormat {
  char separator = ',';
  DecimalMark mark = DecimalMark::Point;

  bool operator==(const TableFormat&) const = default;
};

/// The number that a cell holds, blanks around it allowed: the whole cell is one numeral with this decimal mark (see
/// scanNumeral). Nothing for any other cell, and for a number that no double can hold.
std::optional<double> cellNumber(std::string_view cell, DecimalMark mark);

/// The separator that a user names: "comma", "semicolon", "tab", "blank" or the character itself.
std::optional<char> separatorFromText(const std::string& text);

}  // namespace tavimor
