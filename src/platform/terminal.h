#pragma once

namespace tavimor {

/// Whether a person reads standard error.
bool standardErrorIsTerminal();

}  // namespace tavimor
