#pragma once

#include <cstddef>
#include <span>

namespace tavimor {

struct PrintLines {
  const char* end;    // of the last line that was read
  std::size_t count;  // of lines
};

/// Reads the lines from `first` on that hold one number each exactly as OutputFile prints it, as many as `numbers` has
/// places at most. Ends before the first line of any other form and before one that `last` cuts off. This is the fast
/// way through the long stretches of a values file.
PrintLines readPrintLines(const char* first, const char* last, std::span<double> numbers);

}  // namespace tavimor
