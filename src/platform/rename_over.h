#pragma once

#include <string>

namespace tavimor {

/// Gives a file the name `target` in one step: whatever file stood there is seen until then, and this one from then on.
/// On Windows a program that has the target open is waited for, a second at most, and the renaming is on the disk when
/// this returns.
/// Errors: false, and errno says why.
bool renameOver(const std::string& path, const std::string& target);

}  // namespace tavimor
