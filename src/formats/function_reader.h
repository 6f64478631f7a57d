#pragma once

#include "model/table4.h"
#include "runtime/input_file.h"

namespace tavimor {

/// As many numbers of a table as may be held beside it while it is read or written.
inline constexpr std::size_t kNumbersAtATime = 20480;

/// Whether a strip as wide as a line of the cache is no more than that: then it is turned to be read or written.
bool goesByStrips(const Table4& F);

/// Fills the table with numbers that come with the last index fastest; in memory the first one is. Holds no more than
/// kNumbersAtATime of them beside the table. Errors: as InputFile::readDoubles.
void readFunction(InputFile& file, Table4& F);

}  // namespace tavimor
