#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "ui/controls/application.h"

// Without a display, with the toolkit's own dialogs, and without the pauses of animated menus.
int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  const QTemporaryDir state;  // what is remembered from run to run, and what is kept, is not the user's here
  qputenv("XDG_STATE_HOME", state.path().toUtf8());
  testing::InitGoogleTest(&argc, argv);
  const tavimor::Application application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setEffectEnabled(Qt::UI_AnimateMenu, false);
  return RUN_ALL_TESTS();
}
