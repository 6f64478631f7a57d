#pragma once

#include <cstddef>

namespace tavimor {

/// Whether a person types standard input, and whether one reads standard error.
bool standardInputIsTerminal();
bool standardErrorIsTerminal();

/// Reads what standard input has, waiting only while it has nothing. Returns the number of bytes, 0 at the end.
/// Errors: -1, and errno says why.
long readStandardInput(char* target, std::size_t most);

}  // namespace tavimor
