#include "engine/Compute.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

#include "engine/gram.h"
#include "engine/solver.h"
#include "runtime/run_time_error.h"
#include "support/problem.h"

namespace tavimor {
namespace {

using test::compute;
using test::problem;
using test::spaced;
using test::tabulate;
using testing::ElementsAre;
using testing::IsEmpty;

const char* const kSingular = "YIELDS SINGULAR MATRIX.";

TEST(Compute, FindsALineThroughWholeNumbersExactly) {
  Dimension model = problem({{"x", {-1, 0, 1}, 1, 0}});
  tabulate(model, [](double x, double, double, double) { return 3 + 2 * x; });
  EXPECT_THAT(compute(model), IsEmpty());
  EXPECT_TRUE(model.FitDone);
  EXPECT_EQ(model.Coef(0, 0, 0, 0), 3.0);
  EXPECT_EQ(model.Coef(1, 0, 0, 0), 2.0);
  EXPECT_EQ(model.ErrNumber, 0);
}

TEST(Compute, OfDegreeZeroEverywhereIsTheMean) {
  Dimension model = problem({{"x", {0, 1}, 0, 9}, {"y", {0, 1, 2, 3}, 0, 0}});
  tabulate(model, [](double x, double y, double, double) { return 8 * x + 3 * y; });
  compute(model);
  ASSERT_TRUE(model.FitDone);
  EXPECT_EQ(model.Coef.size(), 1u);
  EXPECT_EQ(model.Coef(0, 0, 0, 0), 8.5);
}

TEST(Compute, ExpandsAboutACentreOutsideTheInterval) {
  Dimension model = problem({{"x", spaced(0, 1, 5), 2, -4}});
  tabulate(model, [](double x, double, double, double) { return 1 + (x + 4) * (x + 4); });
  compute(model);
  EXPECT_NEAR(model.Coef(0, 0, 0, 0), 1.0, 1e-7);
  EXPECT_NEAR(model.Coef(1, 0, 0, 0), 0.0, 1e-7);
  EXPECT_NEAR(model.Coef(2, 0, 0, 0), 1.0, 1e-7);
}

TEST(Compute, TickedVariablesGetTheirSpacedValuesBack) {
  Dimension model = problem({{"x", {0, 1, 2, 3}, 1, 0}});
  model.EquallySpaced[0] = true;
  model.X0 = {9, 9, 9, 9};
  tabulate(model, [](double, double, double, double) { return 1.0; });
  compute(model);
  EXPECT_THAT(model.X0, ElementsAre(0, 1, 2, 3));
  EXPECT_TRUE(model.FitDone);
}

TEST(Compute, RepeatedValuesBelowTheDegreeAreSingular) {
  Dimension model = problem({{"x", {1, 1}, 1, 0}});
  EXPECT_THAT(compute(model), ElementsAre(kSingular));
  EXPECT_FALSE(model.FitDone);
}

TEST(Compute, ValuesThatAllEqualTheCentreAreSingular) {
  for (const Long degree : {1, 2, 3}) {
    Dimension model = problem({{"x", {2.5, 2.5, 2.5, 2.5}, degree, 2.5}});
    EXPECT_THAT(compute(model), ElementsAre(kSingular)) << degree;
    EXPECT_FALSE(model.FitDone);
  }
}

// Three values of which two differ cannot carry a quadratic, but in rounded arithmetic the last diagonal element need
// not come out as 0. The program then goes on with what it has.
TEST(Compute, TooFewDistinctValuesAreSingularOnlyWhereEliminationLeavesAnExactZero) {
  int found = 0, singular = 0;
  for (int n = 1; n <= 40; ++n) {
    Dimension model = problem({{"x", {0.1 * n, 0.1 * n, 0.77}, 2, 0}});
    Gram gram = normalMatrix(model, 0);
    Table4 line;
    line.redim(model.Degree);
    const bool expectSingular = solveAlong(0, gram, line) == Solution::Singular;
    const std::vector<std::string> items = compute(model);
    EXPECT_EQ(model.FitDone, !expectSingular) << n;
    EXPECT_EQ(items.size(), expectSingular ? 1u : 0u) << n;
    ++(expectSingular ? singular : found);
  }
  EXPECT_GT(found, 0);
  EXPECT_GT(singular, 0);
}

TEST(Compute, ASingularSecondVariableLeavesTheFirstSolvedAndNoFit) {
  Dimension model = problem({{"x", {-1, 0, 1}, 1, 0}, {"y", {4, 4}, 1, 4}});
  tabulate(model, [](double x, double, double, double) { return 6 * x; });
  EXPECT_THAT(compute(model), ElementsAre(kSingular));
  EXPECT_FALSE(model.FitDone);
  EXPECT_EQ(model.Coef(1, 0, 0, 0), 12.0);  // the slope 6, summed over y: solved for x, not for y
}

TEST(Compute, AFailedFitEndsTheEarlierOne) {
  Dimension model = problem({{"x", {1, 2}, 1, 0}});
  compute(model);
  ASSERT_TRUE(model.FitDone);
  model.X0 = {1, 1};
  compute(model);
  EXPECT_FALSE(model.FitDone);
}

TEST(Compute, ADegreeAboveTheLastIndexIsASilentNoFit) {
  Dimension model = problem({{"x", {1, 2}, 2, 0.3}});
  tabulate(model, [](double x, double, double, double) { return x; });
  EXPECT_THAT(compute(model), IsEmpty());
  EXPECT_FALSE(model.FitDone);
  EXPECT_EQ(model.ErrNumber, static_cast<Long>(ErrorNumber::SubscriptOutOfRange));
}

TEST(Compute, ASingularMatrixIsToldBeforeADegreeThatIsTooHigh) {
  Dimension model = problem({{"x", {1, 1}, 2, 1}});
  EXPECT_THAT(compute(model), ElementsAre(kSingular));
}

TEST(Compute, ADegreeOfAnUndeclaredVariableFindsNoRoomEither) {
  Dimension model = problem({{"x", {1, 2}, 1, 0}});
  model.Degree[1] = 1;
  EXPECT_THAT(compute(model), IsEmpty());
  EXPECT_FALSE(model.FitDone);
  EXPECT_EQ(model.ErrNumber, static_cast<Long>(ErrorNumber::SubscriptOutOfRange));
}

TEST(Compute, ATableThatIsSmallerThanTheGridIsASilentNoFit) {
  Dimension model = problem({{"x", {1, 2, 3}, 1, 0}});
  model.F.redim({1, 0, 0, 0});
  EXPECT_THAT(compute(model), IsEmpty());
  EXPECT_FALSE(model.FitDone);
  EXPECT_EQ(model.ErrNumber, static_cast<Long>(ErrorNumber::SubscriptOutOfRange));
}

TEST(Compute, AnErrorInRegeneratingTheValuesIsNotTheFitsToHandle) {
  Dimension model = problem({{"x", {1, 2, 3}, 1, 0}});
  model.EquallySpaced[0] = true;
  model.LastPoint[0] = -2;
  EXPECT_THROW(compute(model), RunTimeError);
}

TEST(Compute, TwoPointsGiveAFitAndKeepTheEarlierStandardError) {
  Dimension model = problem({{"x", {0, 1}, 1, 0}});
  tabulate(model, [](double x, double, double, double) { return 1 + x; });
  model.StdErr = 0.125;
  compute(model);
  EXPECT_TRUE(model.FitDone);
  EXPECT_EQ(model.StdErr, 0.125);
  EXPECT_EQ(model.ErrNumber, static_cast<Long>(ErrorNumber::DivisionByZero));
  EXPECT_EQ(model.CorrCoef, 1.0);
}

TEST(Compute, ErrNumberStartsFromZero) {
  Dimension model = problem({{"x", {0, 1, 2}, 1, 0}});
  model.ErrNumber = 11;
  compute(model);
  EXPECT_EQ(model.ErrNumber, 0);
}

TEST(Compute, OnePointIsItsOwnFit) {
  Dimension model = problem({{"x", {7}, 0, 0}});
  model.F(0, 0, 0, 0) = 42;
  model.StdErr = 5;
  compute(model);
  EXPECT_TRUE(model.FitDone);
  EXPECT_EQ(model.Coef(0, 0, 0, 0), 42.0);
  EXPECT_EQ(model.StdErr, 0.0);
  EXPECT_TRUE(std::signbit(model.StdErr));  // the root of 0 / -1
}

TEST(Compute, AnOverflowToInfinityGoesOn) {
  Dimension model = problem({{"x", {0, 1, 2}, 1, 0}});
  tabulate(model, [](double, double, double, double) { return std::numeric_limits<double>::max(); });
  EXPECT_THAT(compute(model), IsEmpty());
  EXPECT_TRUE(model.FitDone);
  EXPECT_TRUE(std::isinf(model.AvgGiven));
}

TEST(Compute, ANaNAmongTheValuesGoesOn) {
  Dimension model = problem({{"x", {0, 1, 2}, 1, 0}});
  model.F(1, 0, 0, 0) = std::numeric_limits<double>::quiet_NaN();
  EXPECT_THAT(compute(model), IsEmpty());
  EXPECT_TRUE(model.FitDone);
  EXPECT_TRUE(std::isnan(model.Coef(0, 0, 0, 0)));
}

}  // namespace
}  // namespace tavimor
