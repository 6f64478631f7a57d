#pragma once

#include <optional>
#include <string_view>

#include "model/per_variable.h"
#include "runtime/long.h"

namespace tavimor {

/// Reads `count` numbers with blanks or a comma between them. Nothing where the line holds anything else.
std::optional<PerVariable<double>> parsePoint(std::string_view line, Long count);

}  // namespace tavimor
