#pragma once

#include <string>

namespace tavimor {

/// All bytes of a file. Errors: a RunTimeError with the path where the system refuses.
std::string wholeText(const std::string& path);

}  // namespace tavimor
