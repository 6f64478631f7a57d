#include <QCoreApplication>
#include <QMenu>
#include <QProcess>

#include "ui/controls/recent_files.h"
#include "ui/main_window/frmTavimor.h"

namespace tavimor {

namespace {

constexpr int kWidestPath = 60;  // characters

}  // namespace

void frmTavimor::connectTools() {
  connect(mnuRecent->menu(), &QMenu::aboutToShow, this, &frmTavimor::fillRecent);
  connect(mnuNewWindow, &QAction::triggered, this, [this] {
    QProcess::startDetached(QCoreApplication::applicationFilePath(), {}, QString::fromStdString(model_.WorkDir));
  });
}

void frmTavimor::fillRecent() {
  QMenu& menu = *mnuRecent->menu();
  menu.clear();
  const int width = kWidestPath * menu.fontMetrics().averageCharWidth();
  for (const QString& path : recentFiles()) {
    QString text = menu.fontMetrics().elidedText(path, Qt::ElideMiddle, width);
    menu.addAction(text.replace(QLatin1Char('&'), QStringLiteral("&&")), this,
                   [this, path] { openFile(path.toStdString()); });
  }
  if (menu.isEmpty()) menu.addAction(QStringLiteral("no problem yet"))->setEnabled(false);
}

}  // namespace tavimor
