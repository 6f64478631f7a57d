#include "ui/controls/input_box.h"

#include <gtest/gtest.h>

#include <QLabel>

#include "ui/support/dialogs.h"

namespace tavimor {
namespace {

TEST(InputBoxes, ReturnTheAnswer) {
  Dialogs dialogs;
  dialogs.expectAndType(QStringLiteral("2,3"));
  EXPECT_EQ(InputBox(QStringLiteral("Which?"), QStringLiteral("Title")), "2,3");
}

TEST(InputBoxes, ReturnNothingWhenCalledOff) {
  Dialogs dialogs;
  dialogs.expectAndCancel();
  EXPECT_EQ(InputBox(QStringLiteral("Which?"), QStringLiteral("Title")), "");
}

TEST(InputBoxes, ShowPromptAndTitleAsTheyStand) {
  Dialogs dialogs;
  dialogs.expect([](QDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Add values for variable <b>&x"));
    EXPECT_EQ(dialog.findChild<QLabel*>()->text(), QStringLiteral("How many for <b>&x?"));
    EXPECT_EQ(dialog.findChild<QLabel*>()->textFormat(), Qt::PlainText);
    dialog.reject();
  });
  InputBox(QStringLiteral("How many for <b>&x?"), QStringLiteral("Add values for variable <b>&x"));
}

}  // namespace
}  // namespace tavimor
