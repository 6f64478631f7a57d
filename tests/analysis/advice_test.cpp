#include "analysis/advice.h"

#include <gmock/gmock.h>

#include <cmath>

#include "model/value_lists.h"
#include "support/fitted_problem.h"
#include "support/stored_problems.h"

namespace tavimor {
namespace {

using testing::ContainsRegex;
using testing::HasSubstr;
using testing::StartsWith;

// Six values from `lower` on in steps of 1, a centre of 0, and exp(x - lower).
Dimension exponential(double lower, Long degree) {
  Dimension model = test::gridProblem({6});
  model.LowerLimit[0] = lower;
  model.UpperLimit[0] = lower + 5;
  model.Degree[0] = degree;
  generateSpacedValues(model, 0);
  for (Long i = 0; i <= 5; ++i) model.F(i, 0, 0, 0) = std::exp(i);
  return model;
}

TEST(Advice, TellsTheDigitsBeforeAndAfterTheRemedy) {
  const auto analysis = analyse(test::fitted(exponential(1000, 3)));
  const Advice advice = adviceOn(*analysis);
  EXPECT_EQ(advice.action, Action::CentreInTheMiddle);
  EXPECT_THAT(advice.sentence, ContainsRegex("^.+ of 15 digits of the worst coefficient are right. Centre in the "
                                             "middle: 1.\\. Precise coefficients: 15.$"));
  EXPECT_THAT(advice.summary, ContainsRegex("^.+ of 15 digits are right$"));
}

TEST(Advice, OfAGoodFitIsNone) {
  const auto analysis = analyse(test::fitted(exponential(-2.5, 4)));
  const Advice advice = adviceOn(*analysis);
  EXPECT_EQ(advice.action, Action::None);
  EXPECT_THAT(advice.sentence, ContainsRegex("^1. of 15 digits of the worst coefficient are right.$"));
}

TEST(Advice, TellsDegreesThatAreEnough) {
  Dimension line = exponential(-2.5, 3);
  for (Long i = 0; i <= 5; ++i) line.F(i, 0, 0, 0) = 1 + 2.0 * i;
  const auto analysis = analyse(test::fitted(line));
  const Advice advice = adviceOn(*analysis);
  EXPECT_EQ(advice.action, Action::OtherDegrees);
  EXPECT_EQ(advice.degrees[0], 1);
  EXPECT_THAT(advice.sentence, HasSubstr("By BIC degree 1 would do: 2 terms instead of 4."));
}

TEST(Advice, OfResultsOfOtherDataIsToFitAgain) {
  ListedProblem listed = test::fitted(exponential(0, 2));
  listed.fit.Coef(0, 0, 0, 0) += 1;
  listed.from = ListedFrom::Files;
  const auto analysis = analyse(std::move(listed));
  const Advice advice = adviceOn(*analysis);
  EXPECT_EQ(advice.action, Action::FitAgain);
  EXPECT_THAT(advice.sentence, HasSubstr("NOT the fit of the data"));
}

TEST(Advice, OfDataThatDetermineNoFitIsALowerDegree) {
  Dimension model = exponential(0, 4);
  model.EquallySpaced[0] = false;
  model.X0 = {0, 0, 1, 1, 2, 2};
  const auto analysis = analyse(test::fitted(model));
  const Advice advice = adviceOn(*analysis);
  EXPECT_EQ(advice.action, Action::OtherDegrees);
  EXPECT_EQ(advice.degrees[0], 2);
  EXPECT_THAT(advice.sentence, StartsWith("The data determine no fit: variable \"x\" has 3 different values"));
}

TEST(Advice, OfDataThatAreNotFiniteIsNone) {
  Dimension model = exponential(0, 2);
  model.F(3, 0, 0, 0) = NAN;
  const auto analysis = analyse(test::fitted(model));
  const Advice advice = adviceOn(*analysis);
  EXPECT_EQ(advice.action, Action::None);
  EXPECT_THAT(advice.sentence, StartsWith("There is no solution: a value of the function"));
}

TEST(Advice, OfANoughtIsThatNothingIsMoreThanRounding) {
  Dimension model = exponential(0, 2);
  for (Long i = 0; i <= 5; ++i) model.F(i, 0, 0, 0) = 0.0;
  const auto analysis = analyse(test::fitted(model));
  EXPECT_THAT(adviceOn(*analysis).sentence, StartsWith("No coefficient is more than the rounding of the data."));
}

}  // namespace
}  // namespace tavimor
