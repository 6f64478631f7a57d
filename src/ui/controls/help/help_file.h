#pragma once

#include <QString>

namespace tavimor {

/// The file where it is readable, otherwise the file of the same name that was installed with the program; empty where
/// neither can be read.
QString findHelpFile(const QString& path);

/// Where the help file of that name stands that was installed with the program.
QString installedHelpFile(const QString& path);

}  // namespace tavimor
