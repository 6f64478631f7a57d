#pragma once

#include <string>

namespace tavimor {

/// The user's decimal separator during a run. The program reads and writes numbers with a point whatever the separator
/// is; the other programs in which the user prepares or reads them may not.

/// Keeps the user's decimal separator as it is now, for RestoreDecimalSeparator, and returns it.
const std::string& ReadDecimalSeparator();

/// Makes the user's decimal separator a point.
void SetDecimalPoint();

/// Writes back the separator that was kept. Where none was, nothing changes.
void RestoreDecimalSeparator();

}  // namespace tavimor
