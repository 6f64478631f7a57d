#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace tavimor {

/// Why a statement cannot be run, in words for the user; `at` is the place in the statement's text, null if it concerns
/// the statement as a whole.
class ScriptFailure : public std::runtime_error {
 public:
  explicit ScriptFailure(const std::string& reason, const char* at = nullptr) : std::runtime_error(reason), at_(at) {}

  const char* at() const { return at_; }

 private:
  const char* at_;
};

/// A user's text for a message: what stands beyond 80 bytes is replaced by "...", no character cut in two.
std::string shortened(std::string_view text);

}  // namespace tavimor
