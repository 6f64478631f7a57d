#include "ui/controls/help/help_file.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace tavimor {

namespace {

bool isReadableFile(const QString& path) {
  const QFileInfo file(path);
  return file.isFile() && file.isReadable();
}

}  // namespace

QString installedHelpFile(const QString& path) {
  const QString data = QCoreApplication::applicationDirPath() + QStringLiteral("/../share/tavimor/");
  return QDir::cleanPath(data + QFileInfo(path).fileName());
}

QString findHelpFile(const QString& path) {
  for (const QString& candidate : {path, installedHelpFile(path)})
    if (isReadableFile(candidate)) return candidate;
  return {};
}

}  // namespace tavimor
