#pragma once

#include <cstddef>
#include <vector>

namespace tavimor {

/// Reads the lines from `first` on that hold one number each exactly as OutputFile prints it, `most` of them at most,
/// and appends their values. Returns the place behind the last one: before the first line of any other form and before
/// one that `last` cuts off. This is the fast way through the long stretches of a values file.
const char* readPrintLines(const char* first, const char* last, std::size_t most, std::vector<double>& numbers);

}  // namespace tavimor
