#include <gtest/gtest.h>

#include <QSettings>
#include <QTemporaryDir>

#include "ui/controls/application.h"

// Without a display, with the toolkit's own dialogs, without the pauses of animated menus, and with settings that are
// nobody's.
int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QTemporaryDir stateHome;  // never the user's own
  qputenv("XDG_STATE_HOME", stateHome.path().toUtf8());
  QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  testing::InitGoogleTest(&argc, argv);
  const tavimor::Application application(argc, argv);
  const QTemporaryDir settings;
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setEffectEnabled(Qt::UI_AnimateMenu, false);
  return RUN_ALL_TESTS();
}
