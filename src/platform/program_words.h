#pragma once

#include <string>
#include <vector>

namespace tavimor {

/// What the program was called with, without its name, in UTF-8 on every system.
std::vector<std::string> programWords(int argc, char** argv);

/// From now on the standard streams carry the program's bytes as they are, and a console shows them as UTF-8.
/// Elsewhere than on Windows they do so anyway.
void carryBytesOnStandardStreams();

}  // namespace tavimor
