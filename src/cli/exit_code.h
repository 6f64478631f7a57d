#pragma once

namespace tavimor {

/// What the program's exit status says.
enum class ExitCode { Success = 0, Error = 1, Usage = 2, NoFit = 3 };

}  // namespace tavimor
