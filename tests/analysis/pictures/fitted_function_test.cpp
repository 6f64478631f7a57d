#include "analysis/pictures/fitted_function.h"

#include <gtest/gtest.h>

#include <random>

#include "analysis/point_estimate.h"
#include "analysis/second_opinion.h"
#include "engine/polynomial.h"
#include "support/problem.h"

namespace tavimor {
namespace {

using test::spaced;

Dimension fittedProblem() {
  Dimension model = test::problem({{"x", spaced(0.0, 2.0, 7), 3, 1.0},
                                   {"y", {0.5, 0.7, 1.5, 4.0, 2.0}, 2, 0.0},
                                   {"z", spaced(-1.0, 1.0, 4), 1, 0.25}});
  test::tabulate(model, [](double x, double y, double z, double) { return std::exp(0.5 * x) * y + std::sin(z * y); });
  test::compute(model);
  return model;
}

FittedFunction heldButX(const FittedFunction& function, const PerVariable<double>& point) {
  return function.heldAt(1, point[1]).heldAt(2, point[2]).heldAt(3, point[3]);
}

std::vector<PerVariable<double>> somePoints() {
  std::mt19937_64 random(5);
  std::uniform_real_distribution<double> share(-0.2, 1.2);
  std::vector<PerVariable<double>> points(50);
  for (auto& point : points) point = {2 * share(random), 4 * share(random), 2 * share(random) - 1, 0.0};
  return points;
}

TEST(FittedFunction, OfAListedFitIsThePolynomialThatEvaluationsGive) {
  const Dimension model = fittedProblem();
  const FittedFunction function = FittedFunction::listed(model, model.Coef);
  for (const auto& point : somePoints()) {
    const double wanted = valueAt(model.Coef, model.TrigFlag, offsetsFrom(model.Centre, point));
    const double x = point[0];
    EXPECT_NEAR(heldButX(function, point).along(0, {&x, 1})[0], wanted, 1e-12 * (1 + std::fabs(wanted)));
  }
}

TEST(FittedFunction, OfTheExactSolutionIsThePreciseEstimate) {
  const Dimension model = fittedProblem();
  const SecondOpinion opinion = secondOpinionOn(model);
  const FittedFunction function = FittedFunction::exact(opinion.decomposition);
  for (const auto& point : somePoints()) {
    const double wanted =
        estimateAt(opinion.decomposition, {typedValue(point[0]), typedValue(point[1]), typedValue(point[2]), 0.0})
            .value.rounded();
    const double x = point[0];
    EXPECT_NEAR(heldButX(function, point).along(0, {&x, 1})[0], wanted, 1e-12 * (1 + std::fabs(wanted)));
  }
}

TEST(FittedFunction, OverTwoVariablesTheFirstOneIsTheFastest) {
  const Dimension model = fittedProblem();
  const FittedFunction function = FittedFunction::listed(model, model.Coef).heldAt(1, 1.0).heldAt(3, 0.0);
  const std::vector<double> x{0.0, 0.5, 1.5}, z{-1.0, 0.75};
  const std::vector<double> values = function.over(0, x, 2, z);
  ASSERT_EQ(values.size(), 6U);
  for (std::size_t j = 0; j < z.size(); ++j) {
    const std::vector<double> line = function.heldAt(2, z[j]).along(0, x);
    for (std::size_t i = 0; i < x.size(); ++i) EXPECT_NEAR(values[i + j * x.size()], line[i], 1e-13);
  }
}

TEST(FittedFunction, OfValuesOf1E300AndOf1EMinus300IsFinite) {
  for (const double size : {1e300, 1e-300}) {
    Dimension model = test::problem({{"x", spaced(0.0, 2.0, 7), 2, 1.0}});
    test::tabulate(model, [&](double x, double, double, double) { return size * (1 + x + x * x); });
    const SecondOpinion opinion = secondOpinionOn(model);
    ASSERT_TRUE(opinion.isExact());
    const double x = 1.0;
    EXPECT_NEAR(heldButX(FittedFunction::exact(opinion.decomposition), {}).along(0, {&x, 1})[0] / size, 3.0, 1e-12);
  }
}

TEST(FittedFunction, OfOnePointAVariableIsItsValue) {
  Dimension model = test::problem({{"x", {5.0}, 0, 5.0}});
  test::tabulate(model, [](double, double, double, double) { return 42.0; });
  const SecondOpinion opinion = secondOpinionOn(model);
  ASSERT_TRUE(opinion.isExact());
  const std::vector<double> x{4.0, 5.0, 6.0};
  for (const double value : heldButX(FittedFunction::exact(opinion.decomposition), {}).along(0, x))
    EXPECT_DOUBLE_EQ(value, 42.0);
}

}  // namespace
}  // namespace tavimor
