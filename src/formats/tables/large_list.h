#pragma once

#include <vector>

#include "model/table4.h"

namespace tavimor {

/// A list with an entry for each row of a table.
template <class T>
using LargeList = std::vector<T, TableAllocator<T>>;

}  // namespace tavimor
