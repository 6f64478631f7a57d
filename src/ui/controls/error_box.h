#pragma once

#include <functional>
#include <string>

#include "runtime/run_time_error.h"

namespace tavimor {

/// Shows a run-time error in a critical message box with the buttons "Save a copy..." and "End", and returns when the
/// program is to end. "Save a copy..." asks for a path and saves; where that fails or is called off, the box comes
/// back. Without a function that saves, "End" is the only button.
void reportRunTimeError(const RunTimeError& error, const std::function<void(const std::string& path)>& save);

}  // namespace tavimor
