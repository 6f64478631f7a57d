#pragma once

#include <cstddef>
#include <span>

namespace tavimor {

struct PrintLines {
  const char* end;    // of the last line that was read
  std::size_t count;  // of lines
};

/// The fast way through most lines that OutputFile prints, two at a time. Reads from `first` on those that hold a
/// decimal: a sign or a blank, then digits with a point among or before them, 16 at most and less than 2^53 as one
/// whole number. Ends before two lines of which one has any other form, before one that `last` cuts off or stands near,
/// and where `numbers` has no two places left; takes none where there are no registers of 16 bytes. The text begins at
/// `before`: numbers are loaded with what stands there, and none is taken where that is too little.
PrintLines readDecimalLines(const char* before, const char* first, const char* last, std::span<double> numbers);

}  // namespace tavimor
