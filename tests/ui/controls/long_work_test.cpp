#include "ui/controls/long_work.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

#include "support/expect_error.h"
#include "ui/controls/wait_pointer.h"

namespace tavimor {
namespace {

using namespace std::chrono_literals;

// A window with a field that has the focus, and the display under it.
class LongWorkTest : public testing::Test {
 protected:
  LongWorkTest() : field(new QLineEdit), display(new WorkDisplay) {
    auto* rows = new QVBoxLayout(&window);
    rows->addWidget(field);
    rows->addWidget(display);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    field->setFocus();
  }

  // Work that goes on until it is called off, or for so long.
  WorkEnd workFor(std::chrono::milliseconds duration) {
    LongWork work(*display, [this] { return isEnding; });
    return work.run([&] {
      const auto end = std::chrono::steady_clock::now() + duration;
      while (std::chrono::steady_clock::now() < end) {
        work.tellOrLeave(0.25);
        std::this_thread::sleep_for(1ms);
      }
    });
  }

  template <class Action>
  void after(std::chrono::milliseconds delay, Action action) {
    QTimer::singleShot(delay, &window, action);
  }

  QWidget window;
  QLineEdit* field;
  WorkDisplay* display;
  bool isEnding = false;
};

constexpr auto kForever = 30s;

TEST_F(LongWorkTest, IsDoneWhenItIsDone) {
  EXPECT_EQ(workFor(0ms), WorkEnd::Done);
  EXPECT_EQ(workFor(200ms), WorkEnd::Done);
  EXPECT_FALSE(display->isVisible());
}

TEST_F(LongWorkTest, EscapeCallsItOff) {
  after(200ms, [this] { QTest::keyClick(field, Qt::Key_Escape); });
  EXPECT_EQ(workFor(kForever), WorkEnd::CalledOff);
  EXPECT_EQ(QApplication::focusWidget(), field);
}

TEST_F(LongWorkTest, StopCallsItOff) {
  after(900ms, [this] {
    EXPECT_TRUE(display->isVisible());
    QTest::mouseClick(display->cmdStop, Qt::LeftButton);
  });
  EXPECT_EQ(workFor(kForever), WorkEnd::CalledOff);
  EXPECT_FALSE(display->isVisible());
}

TEST_F(LongWorkTest, TheEndOfTheProgramCallsItOffWithinASecond) {
  QElapsedTimer sinceEnd;
  after(200ms, [&] {
    isEnding = true;
    sinceEnd.start();
  });
  EXPECT_EQ(workFor(kForever), WorkEnd::CalledOff);
  EXPECT_LT(sinceEnd.elapsed(), 1000);
}

TEST_F(LongWorkTest, ShowsItsShareAfterHalfASecond) {
  after(300ms, [this] { EXPECT_FALSE(display->isVisible()); });
  after(900ms, [this] {
    EXPECT_TRUE(display->isVisible());
    EXPECT_EQ(display->prgWork->value(), 25);
  });
  EXPECT_EQ(workFor(1200ms), WorkEnd::Done);
}

TEST_F(LongWorkTest, OtherKeysAndClicksAreSwallowed) {
  QPushButton button;
  window.layout()->addWidget(&button);
  int clicks = 0;
  QObject::connect(&button, &QPushButton::clicked, [&] { ++clicks; });
  after(200ms, [&] {
    QTest::keyClicks(field, "12");
    QTest::mouseClick(&button, Qt::LeftButton);
  });
  EXPECT_EQ(workFor(500ms), WorkEnd::Done);
  EXPECT_EQ(field->text(), "");
  EXPECT_EQ(clicks, 0);
  QTest::keyClicks(field, "3");
  EXPECT_EQ(field->text(), "3");
}

TEST_F(LongWorkTest, TimersGoOnMeanwhile) {
  int ticks = 0;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, [&] { ++ticks; });
  timer.start(10);
  workFor(500ms);
  EXPECT_GT(ticks, 5);
}

TEST_F(LongWorkTest, ItsErrorIsThrownWhereItWasAskedFor) {
  LongWork work(*display, [] { return false; });
  test::expectError(ErrorNumber::DiskFull, [&] { work.run([] { throw RunTimeError(ErrorNumber::DiskFull); }); });
}

}  // namespace
}  // namespace tavimor
