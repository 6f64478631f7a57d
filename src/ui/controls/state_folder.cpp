#include "ui/controls/state_folder.h"

#include <QDir>
#include <QStandardPaths>

namespace tavimor {

std::string stateFolder() {
#if defined(Q_OS_WIN) || defined(Q_OS_MACOS)
  const QString place = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
#else
  // What is no absolute path does not count.
  const QString named = qEnvironmentVariable("XDG_STATE_HOME");
  const QString place = QDir::isAbsolutePath(named) ? named : QDir::home().filePath(QStringLiteral(".local/state"));
#endif
  return QDir(QDir::cleanPath(place)).filePath(QStringLiteral("tavimor")).toStdString();
}

}  // namespace tavimor
