#include <gmock/gmock.h>

#include <cmath>
#include <limits>

#include "engine/gram.h"
#include "engine/right_hand_side.h"
#include "runtime/run_time_error.h"
#include "support/problem.h"

namespace tavimor {
namespace {

using test::problem;
using test::tabulate;

constexpr double kInfinity = std::numeric_limits<double>::infinity();

double power(double base, Long exponent) {
  double result = 1.0;
  for (Long n = 0; n < exponent; ++n) result *= base;
  return result;
}

// Values of small whole numbers, for which every sum and power is exact: any order of operations gives the same.
Dimension wholeNumberProblem() {
  Dimension model =
      problem({{"a", {-1, 0, 2}, 2, 1}, {"b", {3, 4}, 1, 0}, {"c", {0, 1, 2, 5}, 3, 2}, {"d", {-2, 2}, 1, -1}});
  tabulate(model, [](double a, double b, double c, double d) { return a + 2 * b - c * d + 3; });
  return model;
}

TEST(RightHandSide, OfOneVariableIsTheSumOfValuesTimesPowers) {
  Dimension model = problem({{"x", {1, 2, 4}, 2, 1}});
  tabulate(model, [](double x, double, double, double) { return 10 * x; });
  model.Coef = rightHandSide(model);
  ASSERT_EQ(model.Coef.last(), (PerVariable<Long>{2, 0, 0, 0}));
  EXPECT_EQ(model.Coef(0, 0, 0, 0), 10.0 + 20.0 + 40.0);
  EXPECT_EQ(model.Coef(1, 0, 0, 0), 20.0 * 1 + 40.0 * 3);
  EXPECT_EQ(model.Coef(2, 0, 0, 0), 20.0 * 1 + 40.0 * 9);
}

TEST(RightHandSide, OfFourVariablesIsTheSumOverTheGrid) {
  Dimension model = wholeNumberProblem();
  model.Coef = rightHandSide(model);
  ASSERT_EQ(model.Coef.last(), model.Degree);
  test::forEachIndex(model.Degree, [&](Long j0, Long j1, Long j2, Long j3) {
    double sum = 0.0;
    test::forEachIndex(model.LastPoint, [&](Long i0, Long i1, Long i2, Long i3) {
      sum += model.F(i0, i1, i2, i3) * power(model.X0[i0] - 1, j0) * power(model.X1[i1], j1) *
             power(model.X2[i2] - 2, j2) * power(model.X3[i3] + 1, j3);
    });
    EXPECT_EQ(model.Coef(j0, j1, j2, j3), sum) << j0 << j1 << j2 << j3;
  });
}

TEST(RightHandSide, StartsAfreshEachTime) {
  Dimension model = wholeNumberProblem();
  model.Coef = rightHandSide(model);
  const double first = model.Coef(1, 1, 2, 0);
  model.Coef = rightHandSide(model);
  EXPECT_EQ(model.Coef(1, 1, 2, 0), first);
}

TEST(RightHandSide, AnOverflowLeavesAnInfinityAndTheSumsGoOn) {
  Dimension model = problem({{"x", {1e200, 1}, 2, 0}});
  model.F(0, 0, 0, 0) = 2;
  model.F(1, 0, 0, 0) = 3;
  model.Coef = rightHandSide(model);
  EXPECT_EQ(model.Coef(0, 0, 0, 0), 5.0);
  EXPECT_EQ(model.Coef(1, 0, 0, 0), 2e200);
  EXPECT_EQ(model.Coef(2, 0, 0, 0), kInfinity);
}

TEST(RightHandSide, AValueListThatIsTooShortIsASubscriptError) {
  Dimension model = wholeNumberProblem();
  model.X2.pop_back();
  EXPECT_THROW(rightHandSide(model), RunTimeError);
}

TEST(RightHandSide, AnUndeclaredAxisNeedsItsOneValueToo) {
  Dimension model = problem({{"x", {1, 2, 4}, 2, 1}});
  model.X3.clear();
  EXPECT_THROW(rightHandSide(model), RunTimeError);
}

TEST(Gram, HoldsTheMomentsOfTheDeviations) {
  const Dimension model = wholeNumberProblem();
  const Gram gram = normalMatrix(model, 2);
  ASSERT_EQ(gram.degree(), 3);
  for (Long a = 0; a <= 3; ++a)
    for (Long b = 0; b <= 3; ++b) {
      double moment = 0.0;
      for (const double c : model.X2) moment += power(c - 2, a + b);
      EXPECT_EQ(gram(a, b), moment) << a << b;
    }
}

TEST(Gram, IsSymmetricToTheLastBit) {
  const Dimension model = problem({{"x", {0.1, 0.37, 0.74, 1.3}, 3, 0.123}});
  const Gram gram = normalMatrix(model, 0);
  for (Long a = 0; a <= 3; ++a)
    for (Long b = 0; b < a; ++b) EXPECT_EQ(gram(a, b), gram(b, a));
}

TEST(Gram, AnElementIsTheSquaredPowerTimesTheDeviationAgainAndAgain) {
  const double d = 1.1 - 0.3;
  const Dimension model = problem({{"x", {1.1}, 3, 0.3}});
  const Gram gram = normalMatrix(model, 0);
  EXPECT_EQ(gram(0, 3), d * d * d);
  EXPECT_EQ(gram(2, 3), (d * d) * (d * d) * d);
}

TEST(Gram, OfDegreeZeroIsTheNumberOfValues) {
  const Dimension model = problem({{"x", {5, 6, 7}, 0, 1.5}});
  EXPECT_EQ(normalMatrix(model, 0)(0, 0), 3.0);
}

TEST(Gram, AnOverflowLeavesAnInfinity) {
  const Dimension model = problem({{"x", {1e200, 1}, 2, 0}});
  const Gram gram = normalMatrix(model, 0);
  EXPECT_EQ(gram(2, 2), kInfinity);
  EXPECT_EQ(gram(0, 1), 1e200);
}

}  // namespace
}  // namespace tavimor
