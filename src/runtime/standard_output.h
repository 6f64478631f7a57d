#pragma once

#include <string_view>

namespace tavimor {

/// Writes a text to standard output. Errors: a RunTimeError where the system refuses it.
void printText(std::string_view text);

/// Hands everything printed to the system. Errors: as printText.
void finishOutput();

}  // namespace tavimor
