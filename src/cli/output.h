#pragma once

#include <string>

#include "runtime/standard_output.h"

namespace tavimor {

/// Writes a line to standard output, without the blanks at its end: a terminal would wrap the lines of a listing, which
/// are filled up to one length. Errors: as printText.
void printLine(const std::string& line);

/// Writes "tavimor-cli: PATH: reason" to standard error.
void complain(const std::string& path, const std::string& reason);

}  // namespace tavimor
