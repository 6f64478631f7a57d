#include "formats/formulas/check_points.h"

#include <gmock/gmock.h>

#include <cmath>

#include "engine/polynomial.h"
#include "formats/formulas/make_formula.h"
#include "random_fits.h"

namespace tavimor {
namespace {

Dimension fitted() {
  Dimension model = test::problem({{"x", {0, 1, 4}, 2, 1}, {"y", {-1, 3}, 1, 0.5}});
  test::tabulate(model, [](double x, double y, double, double) { return x * x + y; });
  test::compute(model);
  return model;
}

std::vector<PerVariable<double>> pointsOf(const Dimension& model, Long count) {
  std::vector<PerVariable<double>> points;
  for (const CheckPoint& check : formulaOf(model, model, {.name = "f", .within = {}, .checks = count}).checks)
    points.push_back(check.x);
  return points;
}

TEST(CheckPoints, AreTheCornersTheMiddleTheCentreAndThenOthersByTurns) {
  const auto points = pointsOf(fitted(), 7);
  EXPECT_THAT(points,
              testing::ElementsAre(PerVariable<double>{0, -1}, PerVariable<double>{4, -1}, PerVariable<double>{0, 3},
                                   PerVariable<double>{4, 3}, PerVariable<double>{2, 1}, PerVariable<double>{1, 0.5},
                                   PerVariable<double>{1, -1}));
}

TEST(CheckPoints, AreAsManyAsAskedFor) {
  for (const Long count : {0, 1, 3, 50, 1000}) EXPECT_EQ(std::ssize(pointsOf(fitted(), count)), count);
}

TEST(CheckPoints, AreInTheBoxWithTheValuesOfTheFit) {
  test::RandomFits random(5);
  for (int n = 0; n < 20; ++n) {
    const Dimension model = random.next();
    if (!hasFormula(model)) continue;
    const Formula formula = formulaOf(model, model, {.name = "f", .within = {}, .checks = 100});
    for (const CheckPoint& check : formula.checks) {
      for (Long k = 0; k <= model.LastVar; ++k) {
        EXPECT_GE(check.x[k], formula.variables[k].lower);
        EXPECT_LE(check.x[k], formula.variables[k].upper);
      }
      EXPECT_EQ(check.value, valueAt(model.Coef, {}, offsetsFrom(model.Centre, check.x)));
    }
  }
}

// The sum of the terms, each rounded in its own way, is another order of rounding.
double sumOfTerms(const Dimension& model, const PerVariable<double>& x) {
  double sum = 0.0;
  test::forEachIndex(model.Degree, [&](Long j0, Long j1, Long j2, Long j3) {
    const Long j[] = {j0, j1, j2, j3};
    double term = model.Coef(j0, j1, j2, j3);
    for (Long k = 0; k <= model.LastVar; ++k) term *= std::pow(x[k] - model.Centre[k], j[k]);
    sum += term;
  });
  return sum;
}

TEST(CheckPoints, StateABoundOfRoundingThatAnotherOrderKeepsAndThatIsNotLoose) {
  test::RandomFits random(6);
  double largestShare = 0.0;
  for (int n = 0; n < 40; ++n) {
    const Dimension model = random.next();
    if (!hasFormula(model)) continue;
    for (const CheckPoint& check : formulaOf(model, model, {.name = "f", .within = {}}).checks) {
      const double difference = std::abs(sumOfTerms(model, check.x) - check.value);
      EXPECT_LE(difference, check.rounding);
      if (check.rounding > 0.0) largestShare = std::max(largestShare, difference / check.rounding);
    }
  }
  EXPECT_GT(largestShare, 0.01);
}

TEST(CheckPoints, StayWithinTheValuesWhereTypedLimitsAreWider) {
  Dimension model = fitted();
  model.UpperLimit[0] = 100;
  EXPECT_EQ(formulaOf(model, model, {}).variables[0].upper, 4);
  model.EquallySpaced[0] = true;
  EXPECT_EQ(formulaOf(model, model, {}).variables[0].upper, 100);
}

}  // namespace
}  // namespace tavimor
