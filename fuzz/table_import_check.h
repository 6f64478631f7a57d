#pragma once

#include <string_view>

namespace tavimor {

/// Takes the input as a table and imports it, once refusing and once taking means and shrinking. A table that is
/// refused is fine. Of one that is taken, a list of its own points must give the same problem again.
/// Errors: std::logic_error where that does not hold.
void checkTableImport(std::string_view text);

}  // namespace tavimor
