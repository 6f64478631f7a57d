#include <gtest/gtest.h>

#include "ui/support/values_window_test.h"

namespace tavimor {
namespace {

class ClosingTheValues : public ValuesWindowTest {
 protected:
  void SetUp() override { edit(0); }
};

TEST_F(ClosingTheValues, DoneHidesTheWindowAndEnablesTheMainWindow) {
  frmVars* loaded = &values();
  clickDone();
  EXPECT_FALSE(values().isVisible());
  EXPECT_TRUE(window->isEnabled());
  EXPECT_EQ(focusName(), "cmdEditVars(0)");
  edit(1);
  EXPECT_EQ(&values(), loaded);
}

TEST_F(ClosingTheValues, DoneWithTheKeyboard) {
  press(Qt::Key_Tab);
  press(Qt::Key_Tab);
  EXPECT_EQ(focusName(), "cmdExit");
  press(Qt::Key_Return);
  EXPECT_FALSE(values().isVisible());
  EXPECT_TRUE(window->isEnabled());
}

TEST_F(ClosingTheValues, DoneHidesTheEditor) {
  clickCell(1);
  clickDone();
  EXPECT_TRUE(entry().isHidden());
}

TEST_F(ClosingTheValues, DoneStoresWhatTheEditorShows) {
  clickCell(1);
  model.X0[1] = 99;  // behind the editor's back: only what it stores itself can put this right
  clickDone();
  EXPECT_EQ(model.X0[1], 0.5);
}

TEST_F(ClosingTheValues, DoneWithTheEditorHiddenStoresNothing) {
  model.X0[0] = 99;
  clickDone();
  EXPECT_EQ(model.X0[0], 99);
}

TEST_F(ClosingTheValues, TheTitleBarUnloadsTheWindow) {
  const QPointer<frmVars> loaded = &values();
  clickCell(1);
  model.X0[1] = 99;
  values().close();
  EXPECT_EQ(model.X0[1], 0.5);
  EXPECT_TRUE(window->isEnabled());
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(loaded.isNull());
  edit(0);
  EXPECT_TRUE(values().isVisible());
  expectAgreement();
}

TEST_F(ClosingTheValues, TheMainWindowTakesTheValuesWindowAlong) {
  const QPointer<frmVars> loaded = &values();
  window->close();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(loaded.isNull());
  EXPECT_TRUE(Form::openForms().isEmpty());
}

}  // namespace
}  // namespace tavimor
