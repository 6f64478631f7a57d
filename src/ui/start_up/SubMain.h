#pragma once

#include "model/Dimension.h"

/// Start-up, and what goes with it: the user's decimal separator and the About window. The program reads and writes
/// numbers with a point whatever the separator is; the other programs in which the user prepares or reads them may not.

namespace tavimor {

class frmAbout;
class frmTavimor;

/// Keeps the user's decimal separator as it is now, for RestoreDecimalSeparator.
void ReadDecimalSeparator();

/// Makes the user's decimal separator a point.
void SetDecimalPoint();

/// Writes the separator back that was read at start-up.
void RestoreDecimalSeparator();

enum class StartUp { GoesOn, Declined };

/// Reads the separator and, where it is anything but a point, asks whether it may be changed, and changes it.
StartUp DecimalPoint();

/// Shows the About window, or brings the one that is open to the front.
frmAbout& ShowAbout();

/// The start-up: the decimal separator, the About window for two to three seconds, the main window.
/// Returns the main window, shown; null where the user has declined, and no window was shown.
frmTavimor* Main(Dimension& model);

}  // namespace tavimor
