#include <gmock/gmock.h>

#include <cmath>
#include <limits>

#include "engine/polynomial.h"
#include "formats/formulas/make_formula.h"
#include "random_fits.h"
#include "runtime/run_time_error.h"
#include "support/expect_error.h"

namespace tavimor {
namespace {

Formula rounded(const Dimension& model, double within) {
  return formulaOf(model, model, {.name = "f", .within = within, .checks = 200});
}

// 2 + 3 x + 0.001 x^2 and a coefficient with many digits, on [-1, 1].
Dimension parabola() {
  Dimension model = test::problem({{"x", test::spaced(-1, 1, 5), 2, 0}});
  test::compute(model);
  model.Coef(0, 0, 0, 0) = 2.0;
  model.Coef(1, 0, 0, 0) = 3.14159265358979;
  model.Coef(2, 0, 0, 0) = 0.001;
  return model;
}

TEST(RoundedCoefficients, KeepTheFewestDigitsAndLoseTheTermThatDoesNotCount) {
  const Formula formula = rounded(parabola(), 0.01);
  EXPECT_EQ(formula.Coef.last(), (PerVariable<Long>{1, 0, 0, 0}));
  EXPECT_EQ(formula.Coef(0, 0, 0, 0), 2.0);
  EXPECT_EQ(formula.Coef(1, 0, 0, 0), 3.14);
  EXPECT_EQ(formula.rounded->dropped, 1u);
  EXPECT_NEAR(formula.rounded->bound, 0.001 + 0.00159265358979, 1e-15);
  EXPECT_NEAR(formula.rounded->largestOnGrid, 0.001 + 0.00159265358979, 1e-15);
}

TEST(RoundedCoefficients, StayWithinTheBoundOfRandomFits) {
  test::RandomFits random(7);
  for (int n = 0; n < 60; ++n) {
    const Dimension model = random.next();
    if (!hasFormula(model)) continue;
    for (const double within : {1.0, 1e-3, 1e-9}) {
      const Formula formula = rounded(model, within);
      EXPECT_LE(formula.rounded->bound, within);
      EXPECT_LE(formula.rounded->largestOnGrid, formula.rounded->bound * (1 + 1e-9));
      for (const CheckPoint& check : formula.checks) {
        const double fit = valueAt(model.Coef, {}, offsetsFrom(model.Centre, check.x));
        EXPECT_LE(std::abs(check.value - fit), formula.rounded->bound + check.rounding);
      }
    }
  }
}

TEST(RoundedCoefficients, AreAllGoneWhereAnythingIsNearEnough) {
  const Formula formula = rounded(parabola(), 100);
  EXPECT_EQ(formula.Coef.size(), 1u);
  EXPECT_EQ(formula.Coef(0, 0, 0, 0), 0.0);
}

TEST(RoundedCoefficients, AreTheExactOnesWhereNothingMayChange) {
  const Formula formula = rounded(parabola(), 1e-300);
  EXPECT_EQ(formula.rounded->bound, 0.0);
  EXPECT_EQ(formula.Coef(1, 0, 0, 0), 3.14159265358979);
}

TEST(Formula, NeedsCoefficientsThatAreNumbers) {
  Dimension model = parabola();
  EXPECT_TRUE(hasFormula(model));
  model.Coef(1, 0, 0, 0) = std::numeric_limits<double>::infinity();
  EXPECT_FALSE(hasFormula(model));
  test::expectError(ErrorNumber::InvalidCall, [&] { formulaOf(model, model, {}); });
}

}  // namespace
}  // namespace tavimor
