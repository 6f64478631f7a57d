#pragma once

#include <string>

namespace tavimor {

/// A name for the time from the system's last start to its end: two programs that get the same one have run with no
/// start of the system between them. Empty where the system has no such name.
std::string systemRun();

}  // namespace tavimor
