#include "model/spec_fields.h"

#include <gtest/gtest.h>

#include "support/expect_error.h"
#include "support/stored_problems.h"

namespace tavimor {
namespace {

TEST(SetDisplayedSpecs, ShowsTheModelInTheFields) {
  Dimension model = test::gridProblem({3, 5});
  model.LowerLimit = {-0.5, 1e-7};
  model.UpperLimit = {1.0 / 3.0, 1e15};
  model.Degree = {2, 4};
  model.EquallySpaced = {true, false};
  AllSpecFields fields;
  fields[1].chkSpaced = true;
  SetDisplayedSpecs(model, fields);
  EXPECT_EQ(fields[0].txtLL, "-0.5");
  EXPECT_EQ(fields[0].txtUL, "0.333333333333333");
  EXPECT_EQ(fields[0].txtTerms, "2");
  EXPECT_EQ(fields[0].txtPoints, "3");
  EXPECT_TRUE(fields[0].chkSpaced);
  EXPECT_EQ(fields[1].txtLL, "1E-07");
  EXPECT_EQ(fields[1].txtUL, "1E+15");
  EXPECT_EQ(fields[1].txtTerms, "4");
  EXPECT_EQ(fields[1].txtPoints, "5");
  EXPECT_FALSE(fields[1].chkSpaced);
}

TEST(SetDisplayedSpecs, LeavesTheCentreAndUndeclaredVariablesAlone) {
  const Dimension model = test::gridProblem({3});
  AllSpecFields fields;
  fields[0].txtExpansion = "*";
  fields[1].txtLL = "as it was";
  SetDisplayedSpecs(model, fields);
  EXPECT_EQ(fields[0].txtExpansion, "*");
  EXPECT_EQ(fields[1].txtLL, "as it was");
}

TEST(SetDisplayedSpecs, OverflowsWhereNoLongCountsTheValues) {
  Dimension model;
  model.LastPoint[0] = 2147483647;
  AllSpecFields fields;
  test::expectError(ErrorNumber::Overflow, [&] { SetDisplayedSpecs(model, fields); });
}

TEST(CentreFromText, AStarAloneIsTheMiddle) {
  EXPECT_EQ(centreFromText("*", 1, 4), 2.5);
  EXPECT_EQ(centreFromText(" *", 1, 4), 0);
  EXPECT_EQ(centreFromText("* ", 1, 4), 0);
  EXPECT_EQ(centreFromText("**", 1, 4), 0);
}

TEST(CentreFromText, AnythingElseIsItsLeadingNumber) {
  EXPECT_EQ(centreFromText("9", 1, 4), 9);
  EXPECT_EQ(centreFromText(" -.5abc", 1, 4), -0.5);
  EXPECT_EQ(centreFromText("middle", 1, 4), 0);
  EXPECT_EQ(centreFromText("", 1, 4), 0);
}

}  // namespace
}  // namespace tavimor
