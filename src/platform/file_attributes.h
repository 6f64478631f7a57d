#pragma once

#include <cstdio>
#include <string>

namespace tavimor {

/// Gives an open file what belongs to the file at `path` beside its content: owner, group, extended attributes (access
/// lists among them) as far as the user may, and the permissions. Where nothing stands at `path` the file stays as it
/// is.
/// Errors: false where the permissions cannot be asked or given, and errno says why.
bool takeAttributes(std::FILE* file, const std::string& path);

}  // namespace tavimor
