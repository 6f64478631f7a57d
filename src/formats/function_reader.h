#pragma once

#include "model/table4.h"
#include "runtime/input_file.h"

namespace tavimor {

/// Fills the table with numbers that come with the last index fastest; in memory the first one is. Holds no more than
/// some 16,000 of them beside the table. Errors: as InputFile::readDoubles.
void readFunction(InputFile& file, Table4& F);

}  // namespace tavimor
