#include "engine/fit.h"

#include <gtest/gtest.h>

#include "runtime/run_time_error.h"
#include "support/problem.h"

namespace tavimor {
namespace {

using test::problem;

TEST(Fit, IsAFunctionOfTheProblemAlone) {
  Dimension model = problem({{"x", {-1, 0, 1}, 1, 0}});
  test::tabulate(model, [](double x, double, double, double) { return 3 + 2 * x; });
  const FitOutcome outcome = fit(model);
  EXPECT_EQ(outcome.end, FitEnd::Found);
  EXPECT_TRUE(outcome.fit.FitDone);
  EXPECT_EQ(outcome.fit.Coef(1, 0, 0, 0), 2.0);
  EXPECT_EQ(outcome.fit.FitGrid(2, 0, 0, 0), 5.0);
  EXPECT_EQ(outcome.ErrNumber, 0);
  EXPECT_FALSE(model.FitDone);
  EXPECT_EQ(model.Coef.size(), 1u);
}

TEST(Fit, NamesTheVariableWhoseSystemIsSingular) {
  const FitOutcome outcome = fit(problem({{"x", {-1, 0, 1}, 1, 0}, {"y", {4, 4}, 1, 4}}));
  EXPECT_EQ(outcome.end, FitEnd::Singular);
  EXPECT_EQ(outcome.variable, 1);
  EXPECT_FALSE(outcome.fit.FitDone);
}

TEST(Fit, NamesTheVariableWhoseDegreeFindsNoRoom) {
  const FitOutcome outcome = fit(problem({{"x", {-1, 0, 1}, 1, 0}, {"y", {4, 5}, 2, 0.3}}));
  EXPECT_EQ(outcome.end, FitEnd::NoRoom);
  EXPECT_EQ(outcome.variable, 1);
  EXPECT_EQ(outcome.ErrNumber, static_cast<Long>(ErrorNumber::SubscriptOutOfRange));
}

TEST(Fit, EndsWithTheNumberOfARunTimeError) {
  Dimension model = problem({{"x", {1, 2, 3}, 1, 0}});
  model.F.redim({1, 0, 0, 0});
  const FitOutcome outcome = fit(model);
  EXPECT_EQ(outcome.end, FitEnd::Error);
  EXPECT_EQ(outcome.ErrNumber, static_cast<Long>(ErrorNumber::SubscriptOutOfRange));
}

TEST(Fit, AFigureWithoutAValueStaysTheEarlierOne) {
  Dimension model = problem({{"x", {0, 1}, 1, 0}});
  test::tabulate(model, [](double x, double, double, double) { return 1 + x; });
  Statistics earlier;
  earlier.StdErr = 0.125;
  const FitOutcome outcome = fit(model, {}, earlier);
  EXPECT_EQ(outcome.end, FitEnd::Found);
  EXPECT_EQ(outcome.fit.StdErr, 0.125);
  EXPECT_EQ(outcome.ErrNumber, static_cast<Long>(ErrorNumber::DivisionByZero));
}

}  // namespace
}  // namespace tavimor
