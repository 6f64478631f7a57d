#pragma once

#include <array>

namespace tavimor {

constexpr int kMaxVariables = 4;

/// One entry per variable, declared or not.
template <class T>
using PerVariable = std::array<T, kMaxVariables>;

}  // namespace tavimor
