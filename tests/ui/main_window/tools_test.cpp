#include <gtest/gtest.h>

#include <QMenu>

#include "support/stored.h"
#include "ui/support/main_window_test.h"

namespace tavimor {
namespace {

class OpenRecent : public MainWindowTest {
 protected:
  OpenRecent() { qputenv("XDG_STATE_HOME", folder.filePath("state").toUtf8()); }
  ~OpenRecent() override { qputenv("XDG_STATE_HOME", before_); }

  // What the submenu offers when it is opened.
  QList<QAction*> offered() {
    QMenu* menu = item("mnuRecent").menu();
    emit menu->aboutToShow();
    return menu->actions();
  }

 private:
  QByteArray before_ = qgetenv("XDG_STATE_HOME");
};

TEST_F(OpenRecent, OffersNothingAtFirst) {
  ASSERT_EQ(offered().size(), 1);
  EXPECT_EQ(offered().first()->text(), "no problem yet");
  EXPECT_FALSE(offered().first()->isEnabled());
}

TEST_F(OpenRecent, OpensAProblemThatWasSavedOrOpened) {
  test::store(twoVariables(), file("problem"));
  open("problem");
  press(Qt::Key_Z, Qt::ControlModifier);
  ASSERT_EQ(offered().size(), 1);
  offered().first()->trigger();
  EXPECT_EQ(model.FileName, file("problem"));
  EXPECT_EQ(textOf("txtVarNams"), "x,y");
}

TEST_F(OpenRecent, IsThereAsLongAsOpenIs) {
  EXPECT_TRUE(item("mnuRecent").isEnabled());
  declare("1", "x");
  EXPECT_FALSE(item("mnuRecent").isEnabled());
}

}  // namespace
}  // namespace tavimor
