#include "ui/controls/recent_files.h"

#include <QFileInfo>

#include "ui/controls/remembered.h"

namespace tavimor {

namespace {

constexpr qsizetype kMost = 10;

QString key() { return QStringLiteral("recentFiles"); }

QStringList rememberedFiles() { return Remembered().value(key()).toStringList(); }

}  // namespace

QStringList recentFiles() {
  QStringList files = rememberedFiles();
  files.removeIf([](const QString& file) { return !QFileInfo(file).isFile(); });
  return files;
}

void addRecentFile(const std::string& path) {
  const QString file = QFileInfo(QString::fromStdString(path)).absoluteFilePath();
  QStringList files = rememberedFiles();
  files.removeAll(file);
  files.prepend(file);
  Remembered().setValue(key(), QStringList(files.mid(0, kMost)));
}

QStringList recentFolders() {
  QStringList folders;
  for (const QString& file : recentFiles()) folders << QFileInfo(file).absolutePath();
  folders.removeDuplicates();
  return folders;
}

}  // namespace tavimor
