#pragma once

#include <stdexcept>

namespace tavimor {

/// Arguments that do not go with the problem they name.
struct UsageError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

}  // namespace tavimor
