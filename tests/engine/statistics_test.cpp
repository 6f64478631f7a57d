#include "engine/statistics.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numeric>

#include "runtime/run_time_error.h"
#include "support/problem.h"

namespace tavimor {
namespace {

using test::compute;
using test::problem;
using test::tabulate;

// A fit that was not computed: the statistics take the fitted values as they stand.
Dimension withFittedValues(const std::vector<double>& given, const std::vector<double>& fitted) {
  Dimension model = problem({{"x", given, 0, 0}});
  model.F.redim(model.LastPoint);
  model.FitGrid.redim(model.LastPoint);
  std::copy(given.begin(), given.end(), model.F.data());
  std::copy(fitted.begin(), fitted.end(), model.FitGrid.data());
  return model;
}

void setStatistics(Dimension& model) {
  const double sumGiven = std::accumulate(model.F.data(), model.F.data() + model.F.size(), 0.0);
  const StatisticsOutcome outcome =
      fitStatistics(model.F, stripsOf(model.FitGrid), sumGiven, model.NumGridPoints, model);
  static_cast<Statistics&>(model) = outcome.figures;
  model.ErrNumber = outcome.ErrNumber;
}

TEST(Statistics, FollowTheirFormulas) {
  Dimension model = withFittedValues({1, 2, 6, 7}, {2, 2, 4, 10});
  setStatistics(model);
  EXPECT_EQ(model.AvgGiven, 4.0);
  EXPECT_EQ(model.AvgEstimated, 4.5);
  EXPECT_EQ(model.SumRes2, 1.0 + 0 + 4 + 9);
  EXPECT_EQ(model.StdErr, std::sqrt(14.0 / 2));
}

TEST(Statistics, TheRegressionSumIsTakenAboutTheAverageOfTheGivenValues) {
  Dimension model = withFittedValues({1, 2, 6, 7}, {5, 5, 5, 5});
  setStatistics(model);
  EXPECT_EQ(model.CorrCoef, std::sqrt(4.0 / (9 + 4 + 4 + 9)));  // about the average of the fitted values it would be 0
}

TEST(Statistics, TheCorrelationIsNotClippedAtOne) {
  Dimension model = withFittedValues({1, 2, 3}, {0, 2, 4});
  setStatistics(model);
  EXPECT_EQ(model.CorrCoef, 2.0);
}

TEST(Statistics, EqualGivenValuesCorrelateByRuleWhateverTheFit) {
  Dimension model = withFittedValues({4, 4, 4}, {1, 2, 3});
  setStatistics(model);
  EXPECT_EQ(model.CorrCoef, 1.0);
}

TEST(Statistics, WithTwoPointsTheStandardErrorKeepsItsValue) {
  Dimension model = withFittedValues({1, 2}, {0, 0});
  model.StdErr = 0.75;
  setStatistics(model);
  EXPECT_EQ(model.StdErr, 0.75);
  EXPECT_EQ(model.ErrNumber, static_cast<Long>(ErrorNumber::DivisionByZero));
  EXPECT_EQ(model.SumRes2, 5.0);
}

TEST(Statistics, WithOnePointAndAResidualTheStandardErrorKeepsItsValue) {
  Dimension model = withFittedValues({1}, {3});
  model.StdErr = 0.75;
  setStatistics(model);
  EXPECT_EQ(model.StdErr, 0.75);
  EXPECT_EQ(model.ErrNumber, static_cast<Long>(ErrorNumber::InvalidCall));
}

TEST(Statistics, WithOnePointAndNoResidualTheStandardErrorIsMinusZero) {
  Dimension model = withFittedValues({3}, {3});
  model.StdErr = 0.75;
  setStatistics(model);
  EXPECT_EQ(model.StdErr, 0.0);
  EXPECT_TRUE(std::signbit(model.StdErr));
  EXPECT_EQ(model.ErrNumber, 0);
}

TEST(Statistics, TheDivisorIsTwoLessThanThePointsWhateverTheNumberOfTerms) {
  for (const Long degree : {0, 1, 2}) {
    Dimension model = problem({{"x", {-2, -1, 0, 1, 2}, degree, 0}});
    tabulate(model, [](double x, double, double, double) { return x * x * x * x; });
    compute(model);
    EXPECT_EQ(model.StdErr, std::sqrt(model.SumRes2 / 3)) << degree;
  }
}

TEST(Statistics, OfExactDataHaveNoResidual) {
  Dimension model = problem({{"x", {-1, 0, 1, 2}, 1, 0}, {"y", {-1, 0, 1}, 1, 0}});
  tabulate(model, [](double x, double y, double, double) { return 4 - 2 * x + 8 * y + 16 * x * y; });
  compute(model);
  ASSERT_TRUE(model.FitDone);
  EXPECT_EQ(model.SumRes2, 0.0);
  EXPECT_EQ(model.StdErr, 0.0);
  EXPECT_DOUBLE_EQ(model.CorrCoef, 1.0);
}

TEST(Statistics, AQuadraticThroughThreePointsHasTheRootOfTheResidualSumAsError) {
  Dimension model = problem({{"x", {0.1, 0.4, 1.1}, 2, 0.5}});
  tabulate(model, [](double x, double, double, double) { return std::exp(x); });
  compute(model);
  ASSERT_TRUE(model.FitDone);
  EXPECT_EQ(model.StdErr, std::sqrt(model.SumRes2));
  EXPECT_NEAR(model.StdErr, 0.0, 1e-12);
}

TEST(Statistics, TheAveragesOfGivenAndEstimatedValuesAgree) {
  Dimension model = problem({{"x", test::spaced(0, 2, 9), 2, 1}, {"y", test::spaced(-1, 3, 7), 1, 0}});
  tabulate(model, [](double x, double y, double, double) { return std::sin(x) * std::exp(y); });
  compute(model);
  ASSERT_TRUE(model.FitDone);
  EXPECT_GT(model.SumRes2, 0.1);
  EXPECT_NEAR(model.AvgEstimated, model.AvgGiven, 1e-13 * std::fabs(model.AvgGiven));
}

TEST(Statistics, SumsThatOverflowAreInfinite) {
  Dimension model = withFittedValues({1e200, 0, 0}, {0, 0, 0});
  setStatistics(model);
  EXPECT_TRUE(std::isinf(model.SumRes2));
  EXPECT_TRUE(std::isinf(model.StdErr));
}

}  // namespace
}  // namespace tavimor
