#pragma once

#include <string>
#include <vector>

namespace tavimor {

/// The words of a command line that are the program's own: without the toolkit's options ("-platform offscreen",
/// "-style=fusion", "-reverse"), which it takes for itself once there is a display. They have one dash or two.
std::vector<std::string> withoutToolkitOptions(const std::vector<std::string>& words);

}  // namespace tavimor
