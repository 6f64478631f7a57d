#include "ui/main_window/frmAbout.h"

#include <gtest/gtest.h>

#include <QPointer>
#include <QTest>

#include "ui/start_up/SubMain.h"
#include "ui/support/main_window_test.h"

namespace tavimor {
namespace {

class About : public testing::Test {
 protected:
  About() : about(&ShowAbout()) { EXPECT_TRUE(QTest::qWaitForWindowActive(about)); }
  ~About() override { delete about; }

  bool isGone() const {
    return QTest::qWaitFor([this] { return about.isNull(); });
  }

  QPointer<frmAbout> about;
};

TEST_F(About, SaysWhatTheProgramIs) {
  EXPECT_EQ(about->lines().join(QLatin1Char('\n')).toStdString(), R"(


Tavimor

Copyright 2026 the Tavimor developers

Free software under the MIT License

www.tavimor.example)");
}

TEST_F(About, PaintsWhatItSays) {
  const QImage full = about->grab().toImage();
  const frmAbout blank;
  EXPECT_EQ(full.size(), blank.size());
  EXPECT_NE(full, const_cast<frmAbout&>(blank).grab().toImage());
}

TEST_F(About, HasNoControls) { EXPECT_TRUE(about->findChildren<QWidget*>().isEmpty()); }

TEST_F(About, AClickUnloadsIt) {
  QTest::mouseClick(about, Qt::LeftButton);
  EXPECT_TRUE(isGone());
}

TEST_F(About, EscapeUnloadsIt) {
  QTest::keyClick(about, Qt::Key_Escape);
  EXPECT_TRUE(isGone());
}

TEST_F(About, AnotherKeyLeavesIt) {
  QTest::keyClick(about, Qt::Key_A);
  EXPECT_TRUE(about->isOpen());
}

TEST_F(About, ShownAgainItIsTheSameWindowWithTheSameLines) {
  const QStringList lines = about->lines();
  EXPECT_EQ(&ShowAbout(), about.data());
  EXPECT_EQ(about->lines(), lines);
}

class AboutMenu : public MainWindowTest {};

TEST_F(AboutMenu, ShowsTheAboutWindowWhichTheMainWindowClosesWithItself) {
  declare("1", "x");
  item("mnuAbout").trigger();
  QPointer<Form> about = Form::openForms().constLast();
  ASSERT_EQ(about->objectName(), QStringLiteral("frmAbout"));
  EXPECT_TRUE(QTest::qWaitForWindowActive(about));
  EXPECT_TRUE(window->isEnabled());
  window->close();
  EXPECT_TRUE(QTest::qWaitFor([&] { return about.isNull(); }));
}

}  // namespace
}  // namespace tavimor
