#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include "ui/controls/list_box.h"
#include "ui/main_window/frmTavimor.h"
#include "ui/support/dialogs.h"

namespace tavimor {

/// The main window with a model of its own, in an empty folder that is the working directory. Controls are found by
/// their names and driven by keys and clicks.
class MainWindowTest : public testing::Test {
 protected:
  MainWindowTest();
  ~MainWindowTest() override;

  QLineEdit& box(const QString& name) { return find<QLineEdit>(name); }
  QPushButton& button(const QString& name) { return find<QPushButton>(name); }
  QCheckBox& check(const QString& name) { return find<QCheckBox>(name); }
  QLabel& label(const QString& name) { return find<QLabel>(name); }
  QAction& item(const QString& name) { return find<QAction>(name); }
  ListBox& results() { return find<ListBox>("lstCoeff"); }
  std::string listing();

  std::string textOf(const QString& name) { return box(name).text().toStdString(); }
  static std::string focusName();

  /// Keys into the control that has the focus; a click on a control; a text into a field that is clicked first.
  void type(const QString& text);
  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  void click(const QString& button);
  void enter(const QString& field, const QString& text);

  /// Presses Done in the window that has been opened over the main window.
  void clickDone();

  /// Until keys go to this window.
  static bool waitForKeyboard(const QWidget& active);

  /// Number and names, each left by Tab.
  void declare(const QString& number, const QString& names);

  /// Limits, number of values and degree of variable k, in its block on screen, the last field left by Tab.
  void specify(int k, const QString& lower, const QString& upper, const QString& points, const QString& degree);

  QString pathOf(const QString& name) const { return folder.filePath(name); }
  std::string file(const QString& name) const { return pathOf(name).toStdString(); }
  QByteArray contentOf(const QString& name) const;
  void writeFile(const QString& name, const QByteArray& content) const;

  /// After a dialog: what a window manager does.
  void activate();

  /// Opens a problem of the folder through the menu.
  void open(const QString& name);

  Dialogs dialogs;
  QTemporaryDir folder;
  QTemporaryDir stateHome;  // what the program keeps for restoring
  Dimension model;
  QPointer<frmTavimor> window;

 private:
  template <class T>
  T& find(const QString& name) {
    T* control = window->findChild<T*>(name);
    if (control == nullptr) throw std::runtime_error("no control " + name.toStdString());
    return *control;
  }

  QString oldFolder_;
};

/// The listing that the engine makes of the model's fit, line by line.
std::string engineListing(Dimension model);

/// A problem of two variables: x with 3 values on [0, 1] and degree 2, y with 2 values on [0, 2] and degree 1, centres
/// 0.5 and 1. f(x,y) = 1 + 2 x + 3 x^2 + 4 y, so that a fit reproduces it.
Dimension twoVariables();
double twoVariablesAt(double x, double y);

}  // namespace tavimor
