#include "ui/support/main_window_test.h"

#include <QDir>
#include <QFile>

#include "model/value_lists.h"
#include "report/listing.h"
#include "ui/controls/control_array.h"

namespace tavimor {

MainWindowTest::MainWindowTest() : oldFolder_(QDir::currentPath()) {
  QDir::setCurrent(folder.path());
  qputenv("XDG_STATE_HOME", stateHome.path().toUtf8());
  window = new frmTavimor(model);
  window->show();
  EXPECT_TRUE(QTest::qWaitForWindowActive(window));
}

MainWindowTest::~MainWindowTest() {
  if (window != nullptr) window->unload();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QDir::setCurrent(oldFolder_);
}

std::string MainWindowTest::listing() {
  std::string text;
  for (int row = 0; row < results().count(); ++row) text += results().text(row).toStdString() + '\n';
  return text;
}

std::string MainWindowTest::focusName() {
  const QWidget* widget = QApplication::focusWidget();
  return widget == nullptr ? "nothing" : widget->objectName().toStdString();
}

void MainWindowTest::type(const QString& text) { QTest::keyClicks(QApplication::focusWidget(), text); }

void MainWindowTest::press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

void MainWindowTest::click(const QString& name) { QTest::mouseClick(&button(name), Qt::LeftButton); }

void MainWindowTest::clickDone() {
  for (Form* form : Form::openForms())
    if (form != window && form->isVisible())
      QTest::mouseClick(form->findChild<QPushButton*>(QStringLiteral("cmdExit")), Qt::LeftButton);
  ASSERT_TRUE(waitForKeyboard(*window));
}

// A window that stays above another one counts as active as soon as that one is.
bool MainWindowTest::waitForKeyboard(const QWidget& active) {
  return QTest::qWaitFor([&] { return QApplication::activeWindow() == &active && QApplication::focusWidget(); });
}

void MainWindowTest::enter(const QString& field, const QString& text) {
  QTest::mouseClick(&box(field), Qt::LeftButton);
  EXPECT_EQ(focusName(), field.toStdString());
  press(Qt::Key_A, Qt::ControlModifier);
  if (text.isEmpty()) press(Qt::Key_Delete);
  type(text);
}

void MainWindowTest::declare(const QString& number, const QString& names) {
  type(number);
  press(Qt::Key_Tab);
  type(names);
  press(Qt::Key_Tab);
}

void MainWindowTest::specify(int k, const QString& lower, const QString& upper, const QString& points,
                             const QString& degree) {
  enter(elementName("txtLL", k), lower);
  enter(elementName("txtUL", k), upper);
  enter(elementName("txtPoints", k), points);
  enter(elementName("txtTerms", k), degree);
  press(Qt::Key_Tab);
}

QByteArray MainWindowTest::contentOf(const QString& name) const {
  QFile content(pathOf(name));
  EXPECT_TRUE(content.open(QIODevice::ReadOnly)) << name.toStdString();
  return content.readAll();
}

void MainWindowTest::writeFile(const QString& name, const QByteArray& content) const {
  QFile written(pathOf(name));
  EXPECT_TRUE(written.open(QIODevice::WriteOnly));
  written.write(content);
}

void MainWindowTest::open(const QString& name) {
  dialogs.expectAndType(pathOf(name));
  press(Qt::Key_O, Qt::ControlModifier);
  activate();
}

void MainWindowTest::activate() {
  window->activateWindow();
  EXPECT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == window; }));
}

std::string engineListing(Dimension model) {
  std::string text;
  ShowResults(model, model, [&text](const std::string& line) { text += line + '\n'; });
  return text;
}

double twoVariablesAt(double x, double y) { return 1 + 2 * x + 3 * x * x + 4 * y; }

Dimension twoVariables() {
  Dimension model;
  model.LastVar = 1;
  model.VarName = {"x", "y"};
  model.UpperLimit = {1, 2};
  model.Centre = {0.5, 1};
  model.Degree = {2, 1};
  model.LastPoint = {2, 1};
  model.Step = {0.5, 2};
  model.EquallySpaced = {true, false};
  model.ValuesGiven = {true, true};
  model.X0 = {0, 0.5, 1};
  model.X1 = {0, 2};
  model.F.redim(model.LastPoint);
  for (Long i = 0; i <= 2; ++i)
    for (Long j = 0; j <= 1; ++j) model.F(i, j, 0, 0) = twoVariablesAt(model.X0[i], model.X1[j]);
  return model;
}

}  // namespace tavimor
