#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QTimer>
#include <atomic>
#include <csignal>
#include <functional>
#include <numeric>
#include <optional>
#include <thread>
#include <vector>

#include "model/value_lists.h"
#include "platform/end_request.h"
#include "support/files.h"
#include "support/stored.h"
#include "ui/controls/polite_end.h"
#include "ui/controls/work_display.h"
#include "ui/support/main_window_test.h"

#ifdef __linux__
#include <sched.h>
#endif

namespace tavimor {
namespace {

constexpr int kSecond = 1000;  // milliseconds

#ifdef __linux__

// While it lives this thread, and those that it starts, share one processor with fifteen that are always at work: what
// takes 30 ms lasts half a second then.
class BusyMachine {
 public:
  BusyMachine() {
    sched_getaffinity(0, sizeof before_, &before_);
    cpu_set_t one;
    CPU_ZERO(&one);
    CPU_SET(sched_getcpu(), &one);
    sched_setaffinity(0, sizeof one, &one);
    for (int n = 0; n < 15; ++n)
      threads_.emplace_back([this] {
        while (!isOver_) continue;
      });
  }
  BusyMachine(const BusyMachine&) = delete;
  BusyMachine& operator=(const BusyMachine&) = delete;
  ~BusyMachine() {
    isOver_ = true;
    for (std::thread& thread : threads_) thread.join();
    sched_setaffinity(0, sizeof before_, &before_);
  }

 private:
  cpu_set_t before_{};
  std::atomic<bool> isOver_ = false;
  std::vector<std::thread> threads_;
};

#endif

// Work that lasts: a fit of half a minute, and files that it takes long to read and to write.
class CallingOff : public MainWindowTest {
 protected:
  CallingOff() {
    patience_.setInterval(1);
    QObject::connect(&patience_, &QTimer::timeout, [this] { look(); });
  }

  // Does it once the work is going on and has gone on for so long.
  void whileItWorks(std::function<void()> action, int after = 0) {
    action_ = std::move(action);
    after_ = after;
    sinceBegin_.invalidate();
    patience_.start();
  }

  enum class Way { Escape, Stop };

  void callOff(Way way) {
    if (way == Way::Escape)
      QTest::keyClick(window->focusWidget(), Qt::Key_Escape);
    else
      QTest::mouseClick(&button("cmdStop"), Qt::LeftButton);
  }

  // 26 values and degree 25 in each of four variables.
  void openLongFit() {
    Dimension problem;
    problem.LastVar = 3;
    problem.VarName = {"a", "b", "c", "d"};
    for (Long k = 0; k < kMaxVariables; ++k) {
      problem.UpperLimit[k] = problem.LastPoint[k] = problem.Degree[k] = 25;
      problem.EquallySpaced[k] = true;
      std::vector<double>& values = valueList(problem, k);
      values.resize(26);
      std::iota(values.begin(), values.end(), 0.0);
    }
    problem.F.redim(problem.LastPoint);
    test::store(problem, file("long"));
    open("long");
    ASSERT_TRUE(button("cmdCompute").isEnabled());
  }

  // Two million numbers of 15 digits.
  void storeLargeFile() {
    constexpr Long kValues = 1'000'000;
    Dimension problem;
    problem.VarName[0] = "x";
    problem.UpperLimit[0] = 1;
    problem.Degree[0] = 1;
    problem.LastPoint[0] = kValues - 1;
    problem.F.redim(problem.LastPoint);
    problem.X0.resize(kValues);
    for (Long i = 0; i < kValues; ++i) problem.X0[i] = problem.F(i, 0, 0, 0) = (i + 1) / 3.0e6;
    test::store(problem, file("large"));
  }

  std::string status() { return label("lblMessage").text().toStdString(); }

 private:
  // The events of the loop that waits for the work come under the hourglass.
  void look() {
    if (QApplication::overrideCursor() == nullptr) return;
    if (!sinceBegin_.isValid()) sinceBegin_.start();
    if (sinceBegin_.elapsed() < after_) return;
    patience_.stop();
    action_();
  }

  QTimer patience_;
  QElapsedTimer sinceBegin_;
  std::function<void()> action_;
  int after_ = 0;
};

TEST_F(CallingOff, EscapeLeavesAFitAsOneThatFailed) {
  openLongFit();
  whileItWorks([this] { callOff(Way::Escape); });
  click("cmdCompute");
  EXPECT_FALSE(model.FitDone);
  EXPECT_EQ(results().count(), 0);
  EXPECT_EQ(status(), "No fit: the work was called off");
  EXPECT_FALSE(button("cmdEvaluations").isEnabled());
  EXPECT_EQ(textOf("txtTerms(0)"), "25");
  enter("txtTerms(0)", "0");
  press(Qt::Key_Tab);
  EXPECT_EQ(model.Degree[0], 0);
}

TEST_F(CallingOff, StopShowsItselfAfterHalfASecondAndCallsAFitOff) {
  openLongFit();
  whileItWorks(
      [this] {
        EXPECT_TRUE(button("cmdStop").isVisible());
        callOff(Way::Stop);
      },
      600);
  click("cmdCompute");
  EXPECT_FALSE(model.FitDone);
  EXPECT_FALSE(button("cmdStop").isVisible());
}

TEST_F(CallingOff, ClosingDuringAFitEndsTheProgramWithinASecond) {
  openLongFit();
  QElapsedTimer sinceClosed;
  whileItWorks(
      [&] {
        sinceClosed.start();
        window->close();
      },
      600);
  QTimer::singleShot(0, window, [this] { click("cmdCompute"); });
  EXPECT_EQ(QApplication::exec(), 0);
  EXPECT_LT(sinceClosed.elapsed(), kSecond);
  EXPECT_TRUE(Form::openForms().isEmpty());
}

TEST_F(CallingOff, ARequestToEndDuringAFitIsFollowedWithinASecond) {
  openLongFit();
  unloadOnEndRequest(*window, watchEndRequests());
  QElapsedTimer sinceRequest;
  whileItWorks(
      [&] {
        sinceRequest.start();
        std::raise(SIGTERM);
      },
      600);
  QTimer::singleShot(0, window, [this] { click("cmdCompute"); });
  EXPECT_EQ(QApplication::exec(), 0);
  EXPECT_LT(sinceRequest.elapsed(), kSecond);
  EXPECT_TRUE(Form::openForms().isEmpty());
  watchEndRequests();  // forgets the request
  std::signal(SIGTERM, SIG_DFL);
}

#ifdef __linux__

TEST_F(CallingOff, AnOpeningLeavesTheWindowAsItWas) {
  storeLargeFile();
  for (const Way way : {Way::Escape, Way::Stop}) {
    std::optional<BusyMachine> busyMachine;
    dialogs.expectAndType(pathOf("large"), [&] { busyMachine.emplace(); });
    whileItWorks([this, way] { callOff(way); });
    press(Qt::Key_O, Qt::ControlModifier);
    busyMachine.reset();
    activate();
    EXPECT_EQ(model.FileName, "");
    EXPECT_EQ(model.F.size(), 1u);
    EXPECT_TRUE(box("txtOrder").isEnabled());
    EXPECT_TRUE(item("mnuOpen").isEnabled());
    EXPECT_EQ(focusName(), "txtOrder");
  }
  open("large");
  EXPECT_EQ(model.FileName, file("large"));
  EXPECT_EQ(textOf("txtPoints(0)"), "1000000");
}

TEST_F(CallingOff, ASaveLeavesTheEarlierPairAndTheChangeUnsaved) {
  storeLargeFile();
  open("large");
  const std::string before = test::readBytes(file("large")), values = test::readBytes(file("large.dat"));
  for (const Way way : {Way::Escape, Way::Stop}) {
    enter("txtUL(0)", "5");
    whileItWorks([this, way] { callOff(way); });
    {
      const BusyMachine busyMachine;
      press(Qt::Key_S, Qt::ControlModifier);
    }
    EXPECT_TRUE(window->hasUnsavedChanges());
    EXPECT_EQ(test::readBytes(file("large")), before);
    EXPECT_TRUE(test::readBytes(file("large.dat")) == values);
    EXPECT_EQ(test::namesIn(folder.path().toStdString()), (std::vector<std::string>{"large", "large.dat"}));
  }
  press(Qt::Key_S, Qt::ControlModifier);
  EXPECT_FALSE(window->hasUnsavedChanges());
  EXPECT_EQ(test::stored(file("large")).UpperLimit[0], 5);
}

#endif

}  // namespace
}  // namespace tavimor
