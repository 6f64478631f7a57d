#pragma once

#include <string>

namespace tavimor {

/// Makes a folder for its user's eyes alone, with the folders above it that are missing. One that is there already is
/// taken where it is the user's own and no link; others lose their right to look into it.
/// Errors: false, and errno says why.
bool makePrivateFolder(const std::string& path);

/// Whether a folder stands there that is the user's own. A link is none.
bool isOwnFolder(const std::string& path);

}  // namespace tavimor
