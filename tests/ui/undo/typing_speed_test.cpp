#include <gtest/gtest.h>

#include <ctime>

#include "support/stored.h"
#include "ui/undo/undo_test.h"

namespace tavimor {
namespace {

// A key takes a fraction of this; more is felt.
constexpr double kMillisecondsPerKey = 5;

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

  // The mean time of the processor for many keys into the control that has the focus.
  template <class Press>
  void expectInstant(Press pressKey) {
    constexpr int kKeys = 500;
    const std::clock_t begin = std::clock();
    for (int n = 0; n < kKeys; ++n) pressKey(n);
    const double perKey = 1000.0 * static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC / kKeys;
    RecordProperty("microsecondsPerKey", static_cast<int>(1000 * perKey));
    EXPECT_LT(perKey, kMillisecondsPerKey) << "milliseconds a key";
  }
};

TEST_F(TypingIsInstant, InTheValuesWindowWithFiveThousandValues) {
  openGrid(5000, 2);
  edit(0);
  type("1");
  expectInstant([this](int n) {
    if (n % 5 == 4)
      press(Qt::Key_Down);
    else
      type(QString::number(n % 10));
  });
}

TEST_F(TypingIsInstant, InTheFunctionWindowOfThreeHundredByThreeHundredPoints) {
  openGrid(300, 300);
  review("0,0");
  expectInstant([this](int n) {
    if (n % 5 == 4)
      press(Qt::Key_Return);
    else
      type(QString::number(1 + n % 9));
  });
}

}  // namespace
}  // namespace tavimor
