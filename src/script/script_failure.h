#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace tavimor {

/// Why a statement cannot be run, in words for the user.
struct ScriptFailure : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// A user's text for a message: what stands beyond 80 bytes is replaced by "...", no character cut in two.
std::string shortened(std::string_view text);

}  // namespace tavimor
