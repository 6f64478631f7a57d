#pragma once

#include <functional>
#include <string>

namespace tavimor {

/// Receives lines one by one: the results list, a printer, standard output.
using LineSink = std::function<void(const std::string&)>;

}  // namespace tavimor
