#pragma once

#include <functional>

namespace tavimor {

/// Who is told how far a work has come, as a share of 0..1. An empty one is nobody.
using Progress = std::function<void(double share)>;

}  // namespace tavimor
