#include "engine/Compute.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "engine/polynomial.h"
#include "support/expect_error.h"
#include "support/problem.h"

namespace tavimor {
namespace {

using test::problem;

double estimateAt(Dimension& model, const PerVariable<double>& t) {
  model.t = t;
  Evaluate(model);
  return model.S3;
}

Dimension fitted(const std::vector<test::Axis>& axes) {
  Dimension model = problem(axes);
  model.Coef.redim(model.Degree);
  for (std::size_t n = 0; n < model.Coef.size(); ++n) model.Coef.data()[n] = static_cast<double>(n) + 1;
  model.FitDone = true;
  return model;
}

TEST(Evaluate, SumsThePowersOfTheOffsets) {
  Dimension model = fitted({{"x", {0, 1, 2}, 2, 5}, {"y", {0, 1}, 1, 0}});
  EXPECT_EQ(estimateAt(model, {3, 10, 0, 0}), (1 + 2 * 3 + 3 * 9) + (4 + 5 * 3 + 6 * 9) * 10.0);
}

TEST(Evaluate, AtTheCentreIsTheConstant) {
  Dimension model = fitted({{"a", {0, 1}, 1, 2}, {"b", {0, 1}, 1, 3}, {"c", {0, 1}, 1, 4}, {"d", {0, 1}, 1, 5}});
  EXPECT_EQ(estimateAt(model, {0, 0, 0, 0}), model.Coef(0, 0, 0, 0));
}

TEST(Evaluate, ExtrapolatesOutsideTheIntervals) {
  Dimension model = problem({{"x", {0, 1, 2, 3}, 2, 0}});
  test::tabulate(model, [](double x, double, double, double) { return x * x - 2; });
  test::compute(model);
  EXPECT_NEAR(estimateAt(model, {-100, 0, 0, 0}), 9998.0, 1e-7);
}

TEST(Evaluate, WithoutAFitKeepsTheEarlierEstimate) {
  Dimension model = fitted({{"x", {0, 1}, 1, 0}});
  EXPECT_EQ(estimateAt(model, {4, 0, 0, 0}), 9.0);
  model.FitDone = false;
  EXPECT_EQ(estimateAt(model, {7, 0, 0, 0}), 9.0);
}

TEST(Evaluate, AfterASingularFitKeepsTheEarlierEstimate) {
  Dimension model = fitted({{"x", {3, 3}, 1, 0}});
  model.S3 = 1.25;
  test::compute(model);
  ASSERT_FALSE(model.FitDone);
  EXPECT_EQ(estimateAt(model, {7, 0, 0, 0}), 1.25);
}

TEST(Evaluate, ATrigonometricVariableOfDegreeZeroIsAFactorOfOne) {
  Dimension model = fitted({{"x", {0, 1}, 1, 0}, {"u", {0, 1}, 0, 0}});
  model.TrigFlag[1] = true;
  EXPECT_EQ(estimateAt(model, {3, 0.7, 0, 0}), 1 + 2 * 3.0);
}

TEST(Evaluate, ATrigonometricVariableOfDegreeOneHasOneAndTheSine) {
  Dimension model = fitted({{"u", {0, 1}, 1, 0}});
  model.TrigFlag[0] = true;
  EXPECT_EQ(estimateAt(model, {0.7, 0, 0, 0}), 2 * std::sin(0.7) + 1);
}

// The angles are reached by adding: m times u can differ from them in the last digit.
TEST(Evaluate, ATrigonometricVariableRunsThroughItsWaves) {
  const double u = 0.3;
  const double u2 = u + u, u3 = u2 + u;
  const double values[] = {1.0, std::sin(u), std::cos(u), std::sin(u2), std::cos(u2), std::sin(u3), std::cos(u3)};
  for (Long degree = 0; degree <= 6; ++degree) {
    Dimension model = fitted({{"u", test::spaced(0, 1, 8), degree, 0}});
    model.TrigFlag[0] = true;
    double sum = 0.0;
    for (Long j = 0; j <= degree; ++j) sum = (j + 1) * values[j] + sum;
    EXPECT_EQ(estimateAt(model, {u, 0, 0, 0}), sum) << degree;
  }
}

TEST(Evaluate, PowersAndWavesMultiply) {
  Dimension model = fitted({{"u", {0, 1, 2}, 2, 0}, {"y", {0, 1}, 1, 0}});
  model.TrigFlag[0] = true;
  const double u = 0.9;
  const double lower = 3 * std::cos(u) + (2 * std::sin(u) + 1), upper = 6 * std::cos(u) + (5 * std::sin(u) + 4);
  EXPECT_EQ(estimateAt(model, {u, 2, 0, 0}), upper * 2 + lower);
}

TEST(Evaluate, LooksAtTheTrigFlagOnly) {
  Dimension model = fitted({{"x", {0, 1}, 1, 0}});
  model.PeriodFlag[0] = false;
  EXPECT_EQ(estimateAt(model, {3, 0, 0, 0}), 7.0);
}

TEST(Evaluate, LeavesTheCountersWhereItsLoopsEnd) {
  Dimension model = fitted({{"x", {0, 1}, 1, 0}, {"u", {0, 1, 2}, 2, 0}});
  model.TrigFlag[1] = true;
  estimateAt(model, {1, 1, 0, 0});
  EXPECT_EQ(model.I0, -1);
  EXPECT_EQ(model.I1, 2);
}

TEST(Evaluate, AnEstimateBeyondTheRangeOverflowsAndLeavesTheEarlierOne) {
  Dimension model = fitted({{"x", {0, 1, 2}, 2, 0}});
  EXPECT_EQ(estimateAt(model, {4, 0, 0, 0}), 57.0);
  test::expectError(ErrorNumber::Overflow, [&] { estimateAt(model, {1e200, 0, 0, 0}); });
  EXPECT_EQ(model.S3, 57.0);
}

TEST(Evaluate, AnEstimateOverflowsInTheLastSumToo) {
  Dimension model = fitted({{"x", {0, 1}, 1, 0}});
  model.Coef(0, 0, 0, 0) = model.Coef(1, 0, 0, 0) = 1.5e308;
  test::expectError(ErrorNumber::Overflow, [&] { estimateAt(model, {1, 0, 0, 0}); });
  EXPECT_EQ(estimateAt(model, {-1, 0, 0, 0}), 0.0);
}

TEST(Evaluate, AnInfiniteCoefficientGoesThrough) {
  Dimension model = fitted({{"x", {0, 1}, 1, 0}});
  model.Coef(0, 0, 0, 0) = std::numeric_limits<double>::infinity();
  EXPECT_EQ(estimateAt(model, {1, 0, 0, 0}), std::numeric_limits<double>::infinity());
}

TEST(Evaluate, AnOffsetBeyondTheRangeOverflows) {
  EXPECT_EQ(offsetFrom(-1e308, 0.5e308), 1.5e308);
  test::expectError(ErrorNumber::Overflow, [] { offsetFrom(-1e308, 1e308); });
  test::expectError(ErrorNumber::Overflow, [] { offsetsFrom({0, -1e308, 0, 0}, {0, 1e308, 0, 0}); });
}

}  // namespace
}  // namespace tavimor
