#pragma once

#include "model/Dimension.h"

namespace tavimor {

class frmTavimor;

enum class StartUp { GoesOn, Declined };

/// Reads the user's decimal separator and, where it is anything but a point, asks whether it may be changed, and
/// changes it. The main window writes it back when it unloads.
StartUp DecimalPoint();

/// The start-up: the decimal separator, the About window for two to three seconds, the main window.
/// Returns the main window, shown; null where the user has declined, or where the program was asked from outside to end
/// before there was one. The separator is the user's own again then.
frmTavimor* Main(Dimension& model);

}  // namespace tavimor
