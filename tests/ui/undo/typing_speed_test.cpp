#include <gtest/gtest.h>

#include <QDirIterator>
#include <algorithm>
#include <cstdio>
#include <ctime>

#include "support/stored.h"
#include "ui/undo/undo_test.h"

namespace tavimor {
namespace {

// A key takes a fraction of this; more is felt.
constexpr double kMillisecondsPerKey = 5;

#ifdef CLOCK_THREAD_CPUTIME_ID
// The time of the processor that this thread has taken, in milliseconds.
double milliseconds() {
  timespec now{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
  return 1e3 * static_cast<double>(now.tv_sec) + 1e-6 * static_cast<double>(now.tv_nsec);
}
#else
double milliseconds() { return 1e3 * static_cast<double>(std::clock()) / CLOCKS_PER_SEC; }
#endif

// The longest that a timer's event has taken: between two keys it is a timer that keeps the problem aside.
class LongestTimer : public QObject {
 public:
  LongestTimer() { qApp->installEventFilter(this); }
  double found() const { return longest_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::Timer || isWithin_) return false;
    isWithin_ = true;
    const double begin = milliseconds();
    QCoreApplication::sendEvent(watched, event);
    longest_ = std::max(longest_, milliseconds() - begin);
    isWithin_ = false;
    return true;
  }

 private:
  double longest_ = 0.0;
  bool isWithin_ = false;
};

class TypingIsInstant : public UndoTest {
 protected:
  void openGrid(Long points0, Long points1) {
    Dimension large = twoVariables();
    large.LastPoint = {points0 - 1, points1 - 1};
    large.EquallySpaced = {};
    large.X0.assign(points0, 0.5);
    large.X1.assign(points1, 0.5);
    large.F.redim(large.LastPoint);
    test::store(large, file("large"));
    open("large");
  }

  void typeIntoValues(int n) {
    if (n % 5 == 4)
      press(Qt::Key_Down);
    else
      type(QString::number(n % 10));
  }

  void typeIntoFunction(int n) {
    if (n % 5 == 4)
      press(Qt::Key_Return);
    else
      type(QString::number(1 + n % 9));
  }

  // The mean time of the processor for a key into the control that has the focus, with all that it has painted, and the
  // longest time that keeping aside what was typed takes from the keys.
  template <class Press>
  void expectInstant(Press pressKey) {
    constexpr int kKeys = 500;
    const LongestTimer keeping;
    const double begin = milliseconds();
    for (int n = 0; n < kKeys; ++n) {
      pressKey(n);
      QCoreApplication::processEvents();
    }
    const double perKey = (milliseconds() - begin) / kKeys;
    EXPECT_TRUE(QTest::qWaitFor([] { return QFile::exists(keptProblem()); }));
    QTest::qWait(200);
    std::printf("%.2f ms a key, %.2f ms to hand the problem over to be kept\n", perKey, keeping.found());
    EXPECT_LT(perKey, kMillisecondsPerKey);
    EXPECT_LT(keeping.found(), kMillisecondsPerKey);
  }

  static QString keptProblem() {
    QDirIterator kept(qEnvironmentVariable("XDG_STATE_HOME"), {"description.json"}, QDir::Files,
                      QDirIterator::Subdirectories);
    return kept.hasNext() ? kept.next() : QString();
  }
};

TEST_F(TypingIsInstant, InTheValuesWindowWithFiveThousandValues) {
  openGrid(5000, 2);
  edit(0);
  type("1");
  expectInstant([this](int n) { typeIntoValues(n); });
  EXPECT_EQ(undoText(), "Undo: value 99 of x");
}

TEST_F(TypingIsInstant, InTheFunctionWindowOfThreeHundredByThreeHundredPoints) {
  openGrid(300, 300);
  review("0,0");
  expectInstant([this](int n) { typeIntoFunction(n); });
  EXPECT_EQ(undoText(), "Undo: function value at (0,99)");
}

}  // namespace
}  // namespace tavimor
