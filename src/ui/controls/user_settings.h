#pragma once

#include <QSettings>

namespace tavimor {

/// What the program keeps of the user's choices between runs: sizes, places, pages. Nothing of a problem is kept here,
/// and nothing is lost that matters when the file is.
QSettings userSettings();

}  // namespace tavimor
