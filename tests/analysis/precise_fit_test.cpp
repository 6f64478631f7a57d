#include "analysis/precise_fit.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "support/example.h"
#include "support/problem.h"

namespace tavimor {
namespace {

PreciseFit fitOf(const Problem& problem, Reading reading = Reading::AsTyped) {
  const ProblemData data = problemData(problem, reading);
  return preciseFit(decompose(data), centresOf(data));
}

Dimension line(std::vector<double> values, Long degree) {
  Dimension model = test::problem({{"x", std::move(values), degree, 0}});
  test::tabulate(model, [](double x, double, double, double) { return 1 + x; });
  return model;
}

TEST(PreciseFit, FewerDifferentValuesThanTermsDetermineNoFit) {
  const PreciseFit fit = fitOf(line({1, 2, 1, 2, 2}, 2));
  EXPECT_EQ(fit.finding.verdict, Verdict::NotDetermined);
  EXPECT_EQ(fit.finding.obstacle, Obstacle::FewDifferentValues);
  EXPECT_EQ(fit.finding.found, 2u);
}

TEST(PreciseFit, EquallySpacedValuesBetweenEqualLimitsAreOneValue) {
  Dimension model = line({3, 3, 3}, 1);
  model.EquallySpaced[0] = true;
  EXPECT_EQ(fitOf(model).finding.found, 1u);
}

TEST(PreciseFit, NumbersThatAreNotFiniteHaveNoSolution) {
  for (const double bad : {std::numeric_limits<double>::infinity(), std::nan("")}) {
    Dimension values = line({1, 2, 3}, 1);
    values.X0[1] = bad;
    EXPECT_EQ(fitOf(values).finding.obstacle, Obstacle::ValueNotFinite);
    Dimension function = line({1, 2, 3}, 1);
    function.F(1, 0, 0, 0) = bad;
    EXPECT_EQ(fitOf(function).finding.verdict, Verdict::NotFinite);
  }
}

TEST(PreciseFit, ValuesOverTwelveDecadesAreNotCertified) {
  Dimension model = line({1, 2, 3}, 8);
  std::vector<double> values;
  for (int n = 0; n < 30; ++n) values.push_back(std::pow(10.0, -0.4 * n));
  model = line(values, 12);
  const PreciseFit fit = fitOf(model);
  EXPECT_EQ(fit.finding.verdict, Verdict::NotCertified);
  EXPECT_EQ(fit.finding.obstacle, Obstacle::ValuesTooUneven);
}

TEST(PreciseFit, DegreesThatAreTooHighAreRefused) {
  const PreciseFit fit = fitOf(line(test::spaced(0, 1, 1100), 1024));
  EXPECT_EQ(fit.finding.obstacle, Obstacle::DegreeTooHigh);
}

TEST(PreciseFit, AsManyTermsAsPointsLeaveNoResidual) {
  Dimension model = line({0, 0.1, 0.3, 0.7}, 3);
  test::tabulate(model, [](double x, double, double, double) { return std::exp(x); });
  const PreciseFit fit = fitOf(model);
  EXPECT_LE(std::fabs(fit.residualSum.rounded()), fit.residualSum.bound);
}

TEST(PreciseFit, TheSpreadIsTheRootOfTheInverseNormalMatrix) {
  const Dimension model = line({0, 1, 2, 3, 4}, 1);
  const PreciseFit fit = fitOf(model);
  EXPECT_NEAR(fit.coefficients[0].spread, std::sqrt(0.6), 1e-14);  // 1/5 + 2^2/10
  EXPECT_NEAR(fit.coefficients[1].spread, std::sqrt(0.1), 1e-14);
}

TEST(PreciseFit, DataThatDoublesHoldAreNoNoise) {
  const PreciseFit whole = fitOf(line({0, 1, 2, 3}, 1));
  EXPECT_EQ(whole.coefficients[0].rounding, 0.0);
  const PreciseFit rounded = fitOf(line({0, 0.1, 0.2, 0.3}, 1));
  EXPECT_GT(rounded.coefficients[0].rounding, 0.0);
}

TEST(PreciseFit, TermsThatTheDataLackAreNoise) {
  Dimension model = line(test::spaced(0.1, 2.3, 12), 3);
  const PreciseFit fit = fitOf(model);
  EXPECT_FALSE(fit.coefficients[0].isNoise());
  EXPECT_FALSE(fit.coefficients[1].isNoise());
  EXPECT_TRUE(fit.coefficients[2].isNoise());
  EXPECT_TRUE(fit.coefficients[3].isNoise());
}

}  // namespace
}  // namespace tavimor
