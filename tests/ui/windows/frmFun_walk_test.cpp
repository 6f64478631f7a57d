#include <gtest/gtest.h>

#include <random>

#include "ui/support/function_window_test.h"

namespace tavimor {
namespace {

/// What the window should hold, kept by other means: the grid point as one number, the last variable its lowest digit.
struct Expected {
  std::vector<Long> counts;
  Long n = 0;
  std::vector<double> f;                 // by n
  std::vector<std::vector<double>> x{};  // by variable and index

  Long total() const { return static_cast<Long>(f.size()); }

  PerVariable<Long> point() const {
    PerVariable<Long> indices{};
    Long rest = n;
    for (std::size_t k = counts.size(); k-- > 0; rest /= counts[k]) indices[k] = rest % counts[k];
    return indices;
  }

  void moveTo(Long k, Long index) {
    Long weight = 1;
    for (std::size_t lower = static_cast<std::size_t>(k) + 1; lower < counts.size(); ++lower) weight *= counts[lower];
    n += (index - point()[k]) * weight;
  }
};

class FunctionWindowWalk : public FunctionWindowTest {
 protected:
  void begin() {
    open(expected.counts);
    for (expected.n = 0; expected.n < expected.total(); ++expected.n) {
      const PerVariable<Long> at = expected.point();
      expected.f[expected.n] = model.F(at[0], at[1], at[2], at[3]);
    }
    expected.n = 0;
    for (Long k = 0; k <= model.LastVar; ++k)
      for (Long i = 0; i <= model.LastPoint[k]; ++i) expected.x[k].push_back(x(k, i));
  }

  Long below(Long bound) { return static_cast<Long>(random() % static_cast<std::uint32_t>(bound)); }

  void step(Long by) { expected.n = (expected.n + by + expected.total()) % expected.total(); }

  void stepIndex(Long k, Long by) {
    const Long count = expected.counts[k];
    expected.moveTo(k, (expected.point()[k] + by + count) % count);
  }

  void act() {
    const Long k = below(model.LastVar + 1);
    const Long index = below(expected.counts[k]);
    const double value = (below(4000) - 2000) / 4.0;  // quarters: their text is exact
    switch (below(9)) {
      case 0: return click("cmdIncFunIndex"), step(1);
      case 1: return click("cmdDecFunIndex"), step(-1);
      case 2: return click(element("cmdIncIndex", k)), stepIndex(k, 1);
      case 3: return click(element("cmdDecIndex", k)), stepIndex(k, -1);
      case 4: return type(element("txtFunIndex", k), std::to_string(index)), expected.moveTo(k, index);
      case 5: return type(element("txtVarIndex", k), std::to_string(index)), expected.moveTo(k, index);
      case 6: expected.x[k][expected.point()[k]] = value; return type(element("txtVar", k), numberText(value));
      case 7: expected.f[expected.n] = value; return type("txtFun", numberText(value));
      default:
        expected.f[expected.n] = value;
        type("txtFun", numberText(value));
        QTest::keyClick(find("txtFun"), Qt::Key_Return);
        return step(1);
    }
  }

  void expectAgreement() {
    expectAllBoxesShow(expected.point());
    for (Long k = 0; k <= model.LastVar; ++k)
      for (Long i = 0; i <= model.LastPoint[k]; ++i) EXPECT_EQ(x(k, i), expected.x[k][i]);
    const Long stands = expected.n;
    for (expected.n = 0; expected.n < expected.total(); ++expected.n) {
      const PerVariable<Long> at = expected.point();
      EXPECT_EQ(model.F(at[0], at[1], at[2], at[3]), expected.f[expected.n]);
    }
    expected.n = stands;
  }

  // 3 x 4 x 1 x 2 points.
  Expected expected{{3, 4, 1, 2}, 0, std::vector<double>(24), std::vector<std::vector<double>>(4)};
  std::mt19937 random{20};
};

TEST_F(FunctionWindowWalk, LeavesWindowAndModelInAgreement) {
  begin();
  for (int n = 0; n < 2000 && !HasFailure(); ++n) {
    act();
    SCOPED_TRACE(n);
    expectAgreement();
  }
}

}  // namespace
}  // namespace tavimor
