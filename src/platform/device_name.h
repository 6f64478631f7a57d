#pragma once

#include <string_view>

namespace tavimor {

/// Whether the last name of a path is one that Windows keeps for a device, in any folder, whatever follows its first
/// point: "con", "nul.dat", "C:\data\Lpt1 .txt". No file can be made or opened there under such a name.
bool isDeviceName(std::string_view path);

}  // namespace tavimor
