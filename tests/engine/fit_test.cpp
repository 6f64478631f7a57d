#include "engine/fit.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>

#include "engine/gram.h"
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

TEST(Fit, ADegreeBeyondTheThousandIsFittedWhereTheGridHasRoom) {
  Dimension model = problem({{"x", test::spaced(-1, 1, 1100), 1024, 0}});
  test::tabulate(model, [](double x, double, double, double) { return 1 + x; });
  const FitOutcome outcome = fit(model);
  EXPECT_EQ(outcome.end, FitEnd::Found);
  EXPECT_EQ(outcome.ErrNumber, 0);
  EXPECT_EQ(outcome.fit.Coef.size(), 1025u);
}

TEST(Fit, ADegreeWhoseNormalMatrixIsTooLargeIsRefusedAtOnce) {
  const auto begin = std::chrono::steady_clock::now();
  const FitOutcome outcome = fit(problem({{"x", test::spaced(-1, 1, 200000), kMostDegree + 1, 0}}));
  EXPECT_EQ(outcome.end, FitEnd::Error);
  EXPECT_EQ(outcome.ErrNumber, static_cast<Long>(ErrorNumber::OutOfMemory));
  EXPECT_EQ(outcome.detail, "for the normal matrix of degree 5000: 4999 is the largest");
  EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(1));
}

TEST(Fit, AHugeDegreeWithoutRoomIsRefusedAtOnce) {
  const auto begin = std::chrono::steady_clock::now();
  for (const Long degree : {1024, 46341, 2147483646}) {
    const FitOutcome outcome = fit(problem({{"x", {0, 1}, degree, 0.5}}));
    EXPECT_EQ(outcome.end, FitEnd::Error);
    EXPECT_EQ(outcome.ErrNumber, static_cast<Long>(ErrorNumber::OutOfMemory));
  }
  const FitOutcome outcome = fit(problem({{"x", test::spaced(-1, 1, 20001), 20000, 0}, {"y", {0, 1}, 2, 0.5}}));
  EXPECT_EQ(outcome.end, FitEnd::Error);
  EXPECT_EQ(fit(problem({{"x", test::spaced(-1, 1, 100000), 1023, 0}, {"y", {0, 1}, 2, 0.5}})).end, FitEnd::Error);
  EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(1));
}

class CallingOff : public testing::TestWithParam<InstructionSet> {};

// A fit that is called off at any of its looks is no fit; one that is never called off looks several times.
TEST_P(CallingOff, EndsTheFitAtAnyOfItsLooks) {
  if (!hasInstructionSet(GetParam())) GTEST_SKIP();
  Dimension model = problem({{"x", test::spaced(-1, 1, 9), 3, 0}, {"y", test::spaced(0, 1, 4), 2, 0}});
  FitOptions options;
  options.threads = 1;
  options.instructionSet = GetParam();
  int looks = 0, last = 0;
  options.isCalledOff = [&] { return ++looks > last; };
  FitOutcome outcome = fit(model, options);
  for (; outcome.end == FitEnd::CalledOff; outcome = fit(model, options)) {
    EXPECT_FALSE(outcome.fit.FitDone);
    ++last;
    looks = 0;
    ASSERT_LT(last, 1000);
  }
  EXPECT_EQ(outcome.end, FitEnd::Found);
  EXPECT_GT(last, 10);
}

INSTANTIATE_TEST_SUITE_P(Sets, CallingOff, testing::Values(InstructionSet::Plain, widestInstructionSet()));

TEST(Fit, IsCalledOffInEveryThread) {
  Dimension model = problem({{"x", test::spaced(-1, 1, 500), 20, 0}, {"y", test::spaced(0, 1, 500), 20, 0}});
  FitOptions options;
  options.threads = 4;
  std::atomic<int> looks = 0;
  options.isCalledOff = [&] { return ++looks > 6; };
  EXPECT_EQ(fit(model, options).end, FitEnd::CalledOff);
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
