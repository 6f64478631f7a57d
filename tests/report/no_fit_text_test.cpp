#include "report/no_fit_text.h"

#include <gtest/gtest.h>

#include "support/problem.h"

namespace tavimor {
namespace {

std::string reasonFor(const Problem& problem) { return reasonForNoFit(problem, fit(problem)); }

TEST(ReasonForNoFit, NamesTheVariableWhoseDegreeFindsNoRoom) {
  EXPECT_EQ(reasonFor(test::problem({{"x", {1, 2, 3}, 1, 0}, {"y", {1, 2}, 2, 0.3}})),
            "no fit: the degree of variable \"y\" (2) is not below its number of values (2)");
}

TEST(ReasonForNoFit, OfASingularSystemIsWhatTheListSays) {
  EXPECT_EQ(reasonFor(test::problem({{"x", {1, 1}, 1, 0}})), "YIELDS SINGULAR MATRIX.");
}

TEST(ReasonForNoFit, IsOtherwiseTheRunTimeError) {
  Dimension model = test::problem({{"x", {1, 2, 3}, 1, 0}});
  model.F.redim({1, 0, 0, 0});
  EXPECT_EQ(reasonFor(model), "no fit: Subscript out of range");
}

TEST(ReasonForNoFit, SaysWhatIsKnownBeyondTheRunTimeError) {
  FitOutcome outcome;
  outcome.end = FitEnd::Error;
  outcome.ErrNumber = 7;
  outcome.detail = "for a table of 9 x 1 x 1 x 1 numbers";
  EXPECT_EQ(reasonForNoFit({}, outcome), "no fit: Out of memory (for a table of 9 x 1 x 1 x 1 numbers)");
}

}  // namespace
}  // namespace tavimor
