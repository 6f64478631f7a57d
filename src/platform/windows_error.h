#pragma once

namespace tavimor {

/// The errno that says the same as an error of a call of Windows (GetLastError). Built there alone.
int errnoOf(unsigned long error);

}  // namespace tavimor
