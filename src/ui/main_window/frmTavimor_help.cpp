#include <QDir>

#include "ui/main_window/frmTavimor.h"

namespace tavimor {

void frmTavimor::mnuHelp_Click() { showHelp({}); }

// The manual's page about a window has the window's name.
void frmTavimor::showHelp(const QString& page) {
  cdbFile.HelpCommand = kHelpForceFile;
  cdbFile.HelpFile = QDir(QString::fromStdString(model_.WorkDir)).filePath(QStringLiteral("tavimor.hlp")).toStdString();
  cdbFile.ShowHelp(page.toStdString());
}

}  // namespace tavimor
