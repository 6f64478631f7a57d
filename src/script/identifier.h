#pragma once

#include <string>
#include <string_view>

namespace tavimor {

/// The most characters that a name of the script language may have.
inline constexpr std::size_t kMostNameCharacters = 255;

/// A letter from A to Z followed by such letters, digits and underscores. ASCII, whatever the locale.
bool isIdentifier(std::string_view text);
bool beginsIdentifier(char c);
bool continuesIdentifier(char c);

/// The words that the language keeps for itself, in any case: "if", "Dim", "NEXT".
bool isReservedWord(std::string_view name);

/// Names that differ in case alone are one name; this is the form in which they are compared.
std::string lowerCase(std::string_view text);

}  // namespace tavimor
