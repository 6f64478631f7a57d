#include <gtest/gtest.h>

#include <array>
#include <map>
#include <random>

#include "model/value_lists.h"
#include "runtime/val.h"
#include "ui/support/values_window_test.h"

namespace tavimor {
namespace {

/// The values and the function of two variables as the rules of editing tell, in the plainest form.
struct Expected {
  using Point = std::array<Long, 2>;

  std::array<std::vector<double>, 2> x;
  std::map<Point, double> f;
  std::array<Long, 2> addCount{};

  Long last(std::size_t v) const { return static_cast<Long>(x[v].size()) - 1; }

  void remove(std::size_t v, Long r) {
    const Long end = last(v);
    x[v][r] = x[v][end];
    x[v].pop_back();
    std::map<Point, double> kept;
    for (const auto& [point, entry] : f)
      if (point[v] != end) kept[point] = entry;
    for (const auto& [point, entry] : f)
      if (Point target = point; point[v] == end && r != end) {
        target[v] = r;
        kept[target] = entry;
      }
    f = kept;
  }

  void add(std::size_t v, Long count) {
    std::vector<double> written;  // a map's points come with the last index fastest
    for (const auto& [point, entry] : f) written.push_back(entry);
    addCount[v] = count;
    x[v].resize(x[v].size() + count);
    f.clear();
    for (Long i = 0; i <= last(0); ++i)
      for (Long j = 0; j <= last(1); ++j) f[{i, j}] = 0;
    std::size_t n = 0;
    for (Long i = 0; i <= last(0) - addCount[0]; ++i)
      for (Long j = 0; j <= last(1) - addCount[1]; ++j) f[{i, j}] = written[n++];
  }
};

/// Does what a user might do, in no order, and keeps the account.
class RandomWalk : public ValuesWindowTest, public testing::WithParamInterface<unsigned> {
 protected:
  void SetUp() override {
    const Dimension problem = twoVariables();
    expected.x = {problem.X0, problem.X1};
    for (Long i = 0; i <= 2; ++i)
      for (Long j = 0; j <= 1; ++j) expected.f[{i, j}] = problem.F(i, j, 0, 0);
    edit(0);
  }

  Long upTo(Long largest) { return std::uniform_int_distribution<Long>(0, largest)(random); }

  QString anyNumber() {
    const QStringList numbers{"7",    "-2.5", ".5",     "+3", "1e2",  "1e", "-", "2.5E-3",
                              "0007", "--1",  "1.5.25", "e5", "1e99", "0",  "."};
    return numbers[upTo(static_cast<Long>(numbers.size()) - 1)];
  }

  void type(const QString& number) {
    ValuesWindowTest::type(number);
    expected.x[model.V][grid().Row()] = Val(number.toStdString());
  }

  void typeIntoTheGrid() {
    grid().setFocus();
    type(anyNumber());
  }

  void typeIntoACell() {
    clickCell(upTo(grid().Rows() - 1));
    type(anyNumber());
  }

  void press() {
    const std::array keys{Qt::Key_Up,     Qt::Key_Down, Qt::Key_Left,     Qt::Key_Right,
                          Qt::Key_Return, Qt::Key_Home, Qt::Key_PageDown, Qt::Key_Backspace};
    if (focusName() == "cmdDelete") grid().setFocus();
    ValuesWindowTest::press(keys[upTo(static_cast<Long>(keys.size()) - 1)]);
  }

  // Two values stay: the specifications of a variable of one value cannot be captured when the window opens again.
  void remove() {
    if (expected.last(model.V) == 1) return;
    expected.remove(model.V, grid().Row());
    clickDelete();
  }

  void close() {
    if (upTo(3) == 0)
      values().close();
    else
      clickDone();
    ASSERT_TRUE(waitForKeyboard(*window));
  }

  void editAnother() {
    close();
    edit(upTo(1));
  }

  void addSome() {
    const Long v = upTo(1), count = 1 + upTo(2);
    close();
    expected.add(v, count);
    add(v, QString::number(count));
  }

  void typeTheFunction() {
    const Long v = model.V;
    const Expected::Point point{upTo(expected.last(0)), upTo(expected.last(1))};
    close();
    dialogs.expectAndType(QStringLiteral("%1,%2").arg(point[0]).arg(point[1]));
    click("cmdEditFun");
    ASSERT_TRUE(QTest::qWaitFor([] { return focusName() == "txtFun"; }));
    const QString number = anyNumber();
    ValuesWindowTest::type(number);
    expected.f[point] = Val(number.toStdString());
    clickDone();
    edit(v);
  }

  void act() {
    const Long what = upTo(99);
    if (what < 25)
      typeIntoACell();
    else if (what < 40)
      typeIntoTheGrid();
    else if (what < 70)
      press();
    else if (what < 86)
      remove();
    else if (what < 92)
      editAnother();
    else if (what < 96)
      typeTheFunction();
    else
      addSome();
  }

  void expectAccount() {
    for (Long v = 0; v < 2; ++v) ASSERT_EQ(valueList(model, v), expected.x[v]);
    ASSERT_EQ(model.LastPoint, (PerVariable<Long>{expected.last(0), expected.last(1)}));
    ASSERT_EQ(model.F.size(), expected.f.size());
    for (const auto& [point, entry] : expected.f) ASSERT_EQ(model.F(point[0], point[1], 0, 0), entry);
    expectAgreement();
  }

  std::mt19937 random{GetParam()};
  Expected expected;
};

TEST_P(RandomWalk, GridModelAndMainWindowAgreeAtEachStep) {
  constexpr int kSteps = 1000;
  for (int step = 0; step < kSteps && !HasFailure(); ++step) {
    SCOPED_TRACE("step " + std::to_string(step));
    act();
    expectAccount();
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomWalk, testing::Values(1U, 2U, 3U));

}  // namespace
}  // namespace tavimor
