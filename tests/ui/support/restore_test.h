#pragma once

#include <gmock/gmock.h>

#include <QDialog>
#include <QDirIterator>
#include <QTreeWidget>

#include "ui/controls/state_folder.h"
#include "ui/controls/status_line.h"
#include "ui/data_windows/frmFun.h"
#include "ui/support/main_window_test.h"

namespace tavimor {

/// The main window and what it keeps to be restored.
class RestoreTest : public MainWindowTest {
 protected:
  // A problem of one variable, whose function has one value.
  void typeProblem() {
    declare("1", "x");
    specify(0, "0", "4", "3", "2");
    typeValue("0", "7.5");
  }

  void typeValue(const QString& point, const QString& value) {
    dialogs.expectAndType(point);
    click("cmdEditFun");
    auto* function = Form::openForm<frmFun>();
    ASSERT_NE(function, nullptr);
    ASSERT_TRUE(waitForKeyboard(*function));
    type(value);
    clickDone();
  }

  // Closes the window, as a user does who is asked nothing, and starts the program again.
  void startAnew() {
    window->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    model = Dimension();
    window = new frmTavimor(model);
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
  }

  // Chooses Restore... and looks at the dialog before a button is pressed.
  void restore(const QString& button = "Open a copy", const std::function<void(QDialog&)>& look = {}) {
    dialogs.expect([button, look](QDialog& dialog) {
      if (look) look(dialog);
      for (auto* one : dialog.findChildren<QPushButton*>())
        if (one->text().remove('&') == button) return QTest::mouseClick(one, Qt::LeftButton);
      ADD_FAILURE() << "no button " << button.toStdString();
    });
    item("mnuRestore").trigger();
    activate();
  }

  static QTreeWidget& list(QDialog& dialog) { return *dialog.findChild<QTreeWidget*>("lstRestore"); }

  std::string status() { return window->findChild<StatusLine*>("stbStatus")->text().toStdString(); }

  // The folder of the problem that is kept, where it is the only one.
  static QString keptFolder() {
    QDirIterator all(QString::fromStdString(stateFolder()), {"problem.dat"}, QDir::Files, QDirIterator::Subdirectories);
    return all.hasNext() ? QFileInfo(all.next()).path() : QString();
  }

  // But for what the windows remember.
  static QStringList keptFiles() {
    QStringList files;
    QDirIterator all(QString::fromStdString(stateFolder()), QDir::Files, QDirIterator::Subdirectories);
    while (all.hasNext()) files << QFileInfo(all.next()).fileName();
    files.removeAll(QStringLiteral("windows.ini"));
    return files;
  }
};

}  // namespace tavimor
