#pragma once

#include <QFont>

namespace tavimor {

/// The three fonts of the windows, each with substitutes for systems that lack it. Sizes follow the desktop's.
QFont sansSerifFont();   // MS Sans Serif: labels, buttons, frames
QFont verdanaFont();     // what the user types
QFont fixedPitchFont();  // Courier New: lists whose columns stand below each other

}  // namespace tavimor
