#include <QMenuBar>

#include "ui/main_window/frmTavimor_controls.h"

namespace tavimor {

namespace {

QAction* addItem(QWidget& menu, const char* name, const char* caption, const QKeySequence& shortcut = {}) {
  auto* item = new QAction(QLatin1String(caption), &menu);
  item->setObjectName(QLatin1String(name));
  item->setShortcut(shortcut);
  menu.addAction(item);
  return item;
}

QAction* addBar(QMenu& menu, const char* name) {
  QAction* bar = menu.addSeparator();
  bar->setObjectName(QLatin1String(name));
  return bar;
}

}  // namespace

void MainControls::makeMenus(QWidget& window) {
  menuBar = new QMenuBar(&window);
#ifdef Q_OS_MACOS
  menuBar->setNativeMenuBar(false);  // that one shows no item without a menu, as Help and About are
#endif
  makeFileMenu();
  makeToolsMenu();
  mnuHelp = addItem(*menuBar, "mnuHelp", "&Help");
  mnuAbout = addItem(*menuBar, "mnuAbout", "&About");
}

void MainControls::makeFileMenu() {
  QMenu* menu = menuBar->addMenu(QStringLiteral("&File"));
  mnuFile = menu->menuAction();
  mnuFile->setObjectName(QStringLiteral("mnuFile"));
  mnuOpen = addItem(*menu, "mnuOpen", "&Open", Qt::CTRL | Qt::Key_O);
  mnuFileBar1 = addBar(*menu, "mnuFileBar1");
  mnuSave = addItem(*menu, "mnuSave", "&Save", Qt::CTRL | Qt::Key_S);
  mnuSaveAs = addItem(*menu, "mnuSaveAs", "Save &As", Qt::CTRL | Qt::SHIFT | Qt::Key_S);
  mnuFileBar2 = addBar(*menu, "mnuFileBar2");
  mnuPrint = addItem(*menu, "mnuPrint", "&Print", Qt::CTRL | Qt::Key_P);
}

// A table or a recent problem can be taken as long as a problem can be opened.
void MainControls::makeToolsMenu() {
  QMenu* menu = menuBar->addMenu(QStringLiteral("&Tools"));
  mnuTools = menu->menuAction();
  mnuTools->setObjectName(QStringLiteral("mnuTools"));
  mnuUndo = addItem(*menu, "mnuUndo", "&Undo", Qt::CTRL | Qt::Key_Z);
  mnuRedo = addItem(*menu, "mnuRedo", "&Redo", Qt::CTRL | Qt::SHIFT | Qt::Key_Z);
  mnuToolsBar1 = addBar(*menu, "mnuToolsBar1");
  mnuImport = addItem(*menu, "mnuImport", "&Import table...", Qt::CTRL | Qt::Key_I);
  mnuPaste = addItem(*menu, "mnuPaste", "&Paste table", Qt::CTRL | Qt::SHIFT | Qt::Key_V);
  mnuExport = addItem(*menu, "mnuExport", "&Export formula...", Qt::CTRL | Qt::Key_E);
  mnuRestore = addItem(*menu, "mnuRestore", "&Restore...", Qt::CTRL | Qt::Key_R);
  mnuAnalysis = addItem(*menu, "mnuAnalysis", "&Analysis", Qt::Key_F9);
  mnuToolsBar2 = addBar(*menu, "mnuToolsBar2");
  mnuRecent = menu->addMenu(QStringLiteral("Open r&ecent"))->menuAction();
  mnuRecent->setObjectName(QStringLiteral("mnuRecent"));
  mnuNewWindow = addItem(*menu, "mnuNewWindow", "&New window", Qt::CTRL | Qt::Key_N);
  for (QAction* item : {mnuImport, mnuPaste, mnuRecent})
    QObject::connect(mnuOpen, &QAction::enabledChanged, item, &QAction::setEnabled);
}

}  // namespace tavimor
