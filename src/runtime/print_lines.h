#pragma once

#include <span>

#include "runtime/decimal_lines.h"

namespace tavimor {

/// Reads the lines from `first` on that hold one number each exactly as OutputFile prints it, as many as `numbers` has
/// places at most. Ends before the first line of any other form and before one that `last` cuts off. This is the fast
/// way through the long stretches of a values file.
/// The text begins at `before`, which may be `first`: numbers are read the faster for what stands there.
PrintLines readPrintLines(const char* before, const char* first, const char* last, std::span<double> numbers);

}  // namespace tavimor
