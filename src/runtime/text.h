#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tavimor {

/// Text is UTF-8 throughout, and a column is one character of it.

/// Bytes that came from outside as UTF-8: those that are no UTF-8 are taken as Latin-1, each for itself.
std::string utf8FromBytes(std::string_view bytes);

/// The number of characters.
std::size_t characterCount(std::string_view text);

/// The first `count` characters, or all of them where there are fewer.
std::string_view firstCharacters(std::string_view text, std::size_t count);

/// Writes `insert` over `line` from column `column` (the first one is 1) on, without changing the number of
/// characters: what would stand beyond the end is dropped.
std::string overlaid(std::string_view line, std::size_t column, std::string_view insert);

/// The text fit for one line of a message: control characters, and bytes that are no UTF-8, as escapes ("\\n",
/// "\\x1B").
std::string withEscapes(std::string_view text);

/// The beginning of a text from outside, fit for one line of a message: without blanks at both ends, as UTF-8, a
/// question mark for each control character.
std::string excerpt(std::string_view bytes, std::size_t characters = 40);

/// The text without the blanks and tabs at both ends.
std::string_view trimmed(std::string_view text);

}  // namespace tavimor
