#pragma once

namespace tavimor {

/// How the user has left a dialog.
enum class DialogEnd { Confirmed, Cancelled };

}  // namespace tavimor
