#pragma once

#include <string>

namespace tavimor {

/// Where the program keeps what outlives a run without being asked for: $XDG_STATE_HOME/tavimor, which is
/// ~/.local/state/tavimor where that is not set; on systems without such a place, the user's folder for the program's
/// own data.
std::string stateFolder();

}  // namespace tavimor
