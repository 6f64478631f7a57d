#include <gtest/gtest.h>

#include <QStatusBar>

#include "support/stored.h"
#include "ui/support/main_window_test.h"

namespace tavimor {
namespace {

class StatusLineOfTheWindow : public MainWindowTest {
 protected:
  std::string fileName() { return label("lblFileName").text().toStdString(); }
  std::string block() { return label("lblBlock").text().toStdString(); }
};

TEST_F(StatusLineOfTheWindow, StandsAtTheFoot) {
  const auto* line = window->findChild<QStatusBar*>("stbStatus");
  ASSERT_NE(line, nullptr);
  EXPECT_TRUE(line->isVisible());
  EXPECT_EQ(line->geometry().bottom(), window->rect().bottom());
  EXPECT_EQ(line->width(), window->width());
}

TEST_F(StatusLineOfTheWindow, TellsTheBlockOnceTheNamesAreGiven) {
  EXPECT_EQ(block(), "");
  declare("3", "x,y,z");
  EXPECT_EQ(block(), "block 1 of 3");
  click("cmdPrevVar");
  EXPECT_EQ(block(), "block 3 of 3");
  click("cmdNextVar");
  EXPECT_EQ(block(), "block 1 of 3");
}

TEST_F(StatusLineOfTheWindow, TellsTheFileThatWasOpened) {
  EXPECT_EQ(fileName(), "not saved yet");
  test::store(twoVariables(), file("problem"));
  open("problem");
  EXPECT_EQ(fileName(), "problem");
  EXPECT_EQ(block(), "block 1 of 2");
}

TEST_F(StatusLineOfTheWindow, TellsTheFileThatWasSaved) {
  declare("1", "x");
  dialogs.expectAndType(pathOf("saved"));
  press(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(fileName(), "saved");
}

TEST_F(StatusLineOfTheWindow, TellsTheWorkFileAfterValuesWereAdded) {
  declare("1", "x");
  dialogs.expectAndType("2");
  click("cmdAddVars(0)");
  EXPECT_EQ(fileName(), "FUNCTION");
}

TEST_F(StatusLineOfTheWindow, ALongFileNameDoesNotWidenTheWindow) {
  const int width = window->minimumSizeHint().width();
  const QString name(200, QLatin1Char('n'));
  test::store(twoVariables(), file(name));
  open(name);
  EXPECT_EQ(label("lblFileName").text(), name);
  EXPECT_LT(window->minimumSizeHint().width(), width + 100);
  EXPECT_LE(window->width(), 660);
}

}  // namespace
}  // namespace tavimor
