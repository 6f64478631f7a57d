#pragma once

#include <span>

namespace tavimor {

/// The fast way through most rows of a table: one of them, from `first` to its line feed, that holds a decimal for each
/// of the numbers (runtime/decimal.h), with a minus sign at most before it, the separator behind each but the last, and
/// a carriage return at most before the line feed. Returns the place behind it, null for any other row, for one of more
/// than 64 bytes and where the text ends that soon; numbers may have been set then. Null as well where there are no
/// registers of 16 bytes.
/// The text begins at `before`: numbers are loaded with what stands there, and null returns where that is too little.
const char* readDecimalCells(const char* before, const char* first, const char* last, char separator,
                             std::span<double> numbers);

}  // namespace tavimor
