#pragma once

#include <string>

namespace tavimor {

/// Writes a line to standard output. Errors: a RunTimeError where the system refuses it.
void printLine(const std::string& line);

/// The same for a text that ends its lines itself.
void printText(const std::string& text);

/// Hands everything printed to the system. Errors: as printLine.
void finishOutput();

/// Writes "tavimor-cli: PATH: reason" to standard error.
void complain(const std::string& path, const std::string& reason);

}  // namespace tavimor
