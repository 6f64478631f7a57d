#pragma once

#include <functional>
#include <string>

#include "runtime/failure.h"

namespace tavimor {

/// Shows a failure in a critical message box with the buttons "Save a copy..." and "End", and returns when the program
/// is to end. "Save a copy...", the answer of Enter, asks for a path and saves; where that fails or is called off, the
/// box comes back. Escape and the title bar end the program after a second question only, which has No as its answer;
/// at a request from outside to end the program nothing more is asked.
/// Without a function that saves, "End" is the only button.
void reportFailure(const Failure& failure, const std::function<void(const std::string& path)>& save);

}  // namespace tavimor
