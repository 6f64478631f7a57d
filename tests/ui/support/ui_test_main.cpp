#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "ui/controls/application.h"

// Without a display, with the toolkit's own dialogs, and without the pauses of animated menus.
int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QTemporaryDir stateHome;  // never the user's own
  qputenv("XDG_STATE_HOME", stateHome.path().toUtf8());
  QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  testing::InitGoogleTest(&argc, argv);
  const tavimor::Application application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setEffectEnabled(Qt::UI_AnimateMenu, false);
  return RUN_ALL_TESTS();
}
