#include "ui/controls/remembered.h"

#include <QDir>
#include <QFile>

#include "ui/controls/state_folder.h"

namespace tavimor {

namespace {

QString privateFile() {
  const QString folder = QString::fromStdString(stateFolder());
  if (QDir().mkpath(folder)) QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  return QDir(folder).filePath(QStringLiteral("windows.ini"));
}

}  // namespace

Remembered::Remembered() : QSettings(privateFile(), QSettings::IniFormat) {}

}  // namespace tavimor
