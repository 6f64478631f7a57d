#pragma once

#include <QList>
#include <QStringList>
#include <QUrl>
#include <string>

namespace tavimor {

/// The problems that were opened or saved last, the newest first, as far as they are still there.
QStringList recentFiles();

void addRecentFile(const std::string& path);

/// The folders that they stand in, the newest first.
QStringList recentFolders();

}  // namespace tavimor
