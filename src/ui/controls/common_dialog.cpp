#include "ui/controls/common_dialog.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

#include "formats/foreign_file.h"
#include "formats/pair_paths.h"
#include "runtime/text.h"
#include "ui/controls/help/help_file.h"
#include "ui/controls/help/help_viewer.h"
#include "ui/controls/message_box.h"
#include "ui/controls/printing/print_dialog.h"
#include "ui/controls/recent_files.h"

namespace tavimor {

namespace {

QString existingFiles(const std::string& path) {
  QStringList existing;
  const PairPaths pair = pairPaths(path);
  for (const std::string& file : {pair.specification, pair.values})
    if (QFileInfo::exists(QString::fromStdString(file))) existing << QString::fromStdString(withEscapes(file));
  return existing.join(QLatin1Char('\n'));
}

void offerRecentFolders(QFileDialog& dialog) {
  const QStringList folders = recentFolders();
  QList<QUrl> places = dialog.sidebarUrls();
  for (const QString& folder : folders) places << QUrl::fromLocalFile(folder);
  dialog.setSidebarUrls(places);
  dialog.setHistory(folders);
}

DialogEnd show(QFileDialog& dialog, std::string& fileName) {
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  offerRecentFolders(dialog);
  if (!fileName.empty()) {
    const QFileInfo previous(QString::fromStdString(fileName));
    dialog.setDirectory(previous.absolutePath());
    dialog.selectFile(previous.fileName());
  }
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return DialogEnd::Cancelled;
  fileName = dialog.selectedFiles().constFirst().toStdString();
  return DialogEnd::Confirmed;
}

// A file of another kind is never replaced: the user is told why another name is needed.
bool isOwnOrNew(const std::string& path) {
  try {
    requireSameHalves(path);
    return true;
  } catch (const Failure& failure) {
    showWarning(QString::fromStdString(failure.report() + "\n" + withEscapes(failure.path())));
    return false;
  }
}

}  // namespace

DialogEnd CommonDialog::ShowOpen() {
  QFileDialog dialog(QApplication::activeWindow(), QStringLiteral("Open"));
  dialog.setFileMode(QFileDialog::ExistingFile);
  return show(dialog, FileName);
}

DialogEnd CommonDialog::ShowSave() {
  std::string chosen = FileName;
  do {
    QFileDialog dialog(QApplication::activeWindow(), QStringLiteral("Save As"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    if (show(dialog, chosen) == DialogEnd::Cancelled) return DialogEnd::Cancelled;
  } while (!mayReplacePair(chosen));
  FileName = chosen;
  return DialogEnd::Confirmed;
}

void CommonDialog::ShowHelp(const std::string& page) const {
  if (HelpCommand != kHelpForceFile) return;
  const QString wanted = QString::fromStdString(HelpFile);
  const QString found = findHelpFile(wanted);
  if (found.isEmpty())
    showWarning(QStringLiteral("The help file is missing. Looked for:\n\n%1\n%2")
                    .arg(QDir::toNativeSeparators(wanted), QDir::toNativeSeparators(installedHelpFile(wanted))));
  else
    HelpViewer::showFile(found, QString::fromStdString(page));
}

DialogEnd CommonDialog::ShowPrinter(QPrinter& printer) const { return choosePrinter(printer); }

bool mayReplacePair(const std::string& path) {
  if (!isOwnOrNew(path)) return false;
  const QString existing = existingFiles(path);
  return existing.isEmpty() ||
         ask(QStringLiteral("The problem exists already:\n\n%1\n\nDo you want to replace it?").arg(existing)) ==
             Answer::Yes;
}

}  // namespace tavimor
