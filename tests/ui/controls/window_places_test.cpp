#include "ui/controls/window_places.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <QTest>

#include "ui/controls/form.h"

namespace tavimor {
namespace {

class Places : public testing::Test {
 protected:
  Places() { qputenv("XDG_STATE_HOME", folder.path().toUtf8()); }
  ~Places() override { qputenv("XDG_STATE_HOME", before_); }

  // What a form of this name has after it was shown, changed and closed.
  static void leave(const char* name, const QRect& place) {
    auto* form = new Form(QLatin1String(name));
    form->show();
    form->setGeometry(place);
    form->unload();
  }

  static QRect placeOf(const char* name) {
    Form form{QLatin1String(name)};
    form.resize(100, 80);
    form.show();
    return form.geometry();
  }

  QTemporaryDir folder;
  const WindowPlaces places;

 private:
  QByteArray before_ = qgetenv("XDG_STATE_HOME");
};

TEST_F(Places, AWindowComesBackWhereItWasLeft) {
  const QRect place(120, 90, 300, 200);
  leave("frmOne", place);
  EXPECT_EQ(placeOf("frmOne"), place);
}

TEST_F(Places, EachWindowHasItsOwn) {
  leave("frmOne", {120, 90, 300, 200});
  EXPECT_EQ(placeOf("frmTwo").size(), QSize(100, 80));
}

TEST_F(Places, AFixedSizeStays) {
  auto* form = new Form(QStringLiteral("frmFixed"));
  form->setFixedSize(60, 50);
  form->show();
  form->unload();
  EXPECT_EQ(placeOf("frmFixed").size(), QSize(100, 80));
}

TEST_F(Places, APlaceOnAScreenThatIsGoneIsNotTaken) {
  leave("frmOne", {90000, 90, 300, 200});
  EXPECT_LT(placeOf("frmOne").x(), 10000);
}

}  // namespace
}  // namespace tavimor
