#include "model/capture_specs.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "model/value_lists.h"
#include "runtime/run_time_error.h"

namespace tavimor {
namespace {

class CaptureSpecsTest : public testing::Test {
 protected:
  CaptureSpecsTest() {
    fields[0] = {"0", "10", "2", "5", "0", false};
    fields[1] = {"-1", "1", "1", "3", "*", true};
    model.LastVar = 1;
    model.X0 = {0, 1, 2, 3, 4};
    model.X1 = {7, 7, 7};
  }

  RunTimeError errorOfCapture() {
    try {
      CaptureSpecs(model, fields);
    } catch (const RunTimeError& error) {
      return error;
    }
    throw std::logic_error("no run-time error");
  }

  Problem model;
  AllSpecFields fields;
};

TEST_F(CaptureSpecsTest, CopiesTheFieldsOfTheDeclaredVariables) {
  CaptureSpecs(model, fields);
  EXPECT_EQ(model.LowerLimit, (PerVariable<double>{0, -1, 0, 0}));
  EXPECT_EQ(model.UpperLimit, (PerVariable<double>{10, 1, 0, 0}));
  EXPECT_EQ(model.Degree, (PerVariable<Long>{2, 1, 0, 0}));
  EXPECT_EQ(model.LastPoint, (PerVariable<Long>{4, 2, 0, 0}));
  EXPECT_EQ(model.EquallySpaced, (PerVariable<bool>{false, true, false, false}));
}

TEST_F(CaptureSpecsTest, LeavesTheEntriesOfUndeclaredVariablesAlone) {
  fields[2] = {"1", "2", "9", "9", "*", true};
  CaptureSpecs(model, fields);
  EXPECT_EQ(model.Degree[2], 0);
  EXPECT_EQ(model.LastPoint[2], 0);
  EXPECT_FALSE(model.PeriodFlag[2]);
}

TEST_F(CaptureSpecsTest, SetsThePeriodFlagAndClearsTheTrigFlag) {
  model.TrigFlag = {true, true, true, true};
  CaptureSpecs(model, fields);
  EXPECT_EQ(model.PeriodFlag, (PerVariable<bool>{true, true, false, false}));
  EXPECT_EQ(model.TrigFlag, (PerVariable<bool>{false, false, true, true}));
}

TEST_F(CaptureSpecsTest, AStarAsCentreIsTheMiddleOfTheInterval) {
  fields[0].txtExpansion = "*";
  CaptureSpecs(model, fields);
  EXPECT_EQ(model.Centre[0], 5.0);
}

TEST_F(CaptureSpecsTest, ACentreOutsideTheIntervalIsTakenAsItIs) {
  fields[0].txtExpansion = "-3.5";
  CaptureSpecs(model, fields);
  EXPECT_EQ(model.Centre[0], -3.5);
}

TEST_F(CaptureSpecsTest, AStarWithABlankIsNoStar) {
  fields[0].txtExpansion = " *";
  fields[1].txtExpansion = "* ";
  CaptureSpecs(model, fields);
  EXPECT_EQ(model.Centre[0], 0.0);
  EXPECT_EQ(model.Centre[1], 0.0);
}

TEST_F(CaptureSpecsTest, TextsAreReadUpToTheirLeadingNumber) {
  fields[0] = {" 1.5m", "9,5", "3rd", "7 values", "2.5cm", false};
  CaptureSpecs(model, fields);
  EXPECT_EQ(model.LowerLimit[0], 1.5);
  EXPECT_EQ(model.UpperLimit[0], 9.0);
  EXPECT_EQ(model.Degree[0], 3);
  EXPECT_EQ(model.LastPoint[0], 6);
  EXPECT_EQ(model.Centre[0], 2.5);
}

TEST_F(CaptureSpecsTest, HalfADegreeGoesToTheEvenOne) {
  fields[0].txtTerms = "2.5";
  fields[1].txtTerms = "3.5";
  CaptureSpecs(model, fields);
  EXPECT_EQ(model.Degree[0], 2);
  EXPECT_EQ(model.Degree[1], 4);
}

TEST_F(CaptureSpecsTest, TheCountIsLessenedBeforeItIsRounded) {
  fields[0].txtPoints = "4";
  fields[1].txtPoints = "4.5";  // 3.5 goes to 4; rounded first it would give 3
  CaptureSpecs(model, fields);
  EXPECT_EQ(model.LastPoint[0], 3);
  EXPECT_EQ(model.LastPoint[1], 4);
}

TEST_F(CaptureSpecsTest, CountsTheGridPointsOfTheDeclaredVariables) {
  CaptureSpecs(model, fields);
  EXPECT_EQ(model.NumGridPoints, 15);
}

TEST_F(CaptureSpecsTest, MoreGridPointsThanALongHoldsOverflow) {
  fields[0].txtPoints = fields[1].txtPoints = "46341";  // 46340 squared is the last that fits
  EXPECT_EQ(errorOfCapture().number(), ErrorNumber::Overflow);
}

TEST_F(CaptureSpecsTest, ADegreeThatNoLongHoldsOverflows) {
  fields[0].txtTerms = "2147483648";
  EXPECT_EQ(errorOfCapture().number(), ErrorNumber::Overflow);
}

TEST_F(CaptureSpecsTest, EveryVariableGetsAStepSpacedOrNot) {
  CaptureSpecs(model, fields);
  EXPECT_EQ(model.Step[0], 2.5);
  EXPECT_EQ(model.Step[1], 1.0);
}

TEST_F(CaptureSpecsTest, ASingleValueHasNoStep) {
  fields[0].txtPoints = "1";
  EXPECT_EQ(errorOfCapture().number(), ErrorNumber::DivisionByZero);
}

TEST_F(CaptureSpecsTest, ASingleValueOfASecondVariableHasNoStepEither) {
  fields[1].txtPoints = "1";
  EXPECT_EQ(errorOfCapture().number(), ErrorNumber::DivisionByZero);
}

TEST_F(CaptureSpecsTest, AnErrorSaysWhatItIsAbout) {
  model.VarName = {"speed", "depth", "", ""};
  const AllSpecFields good = fields;
  fields[1].txtPoints = "1";
  EXPECT_EQ(errorOfCapture().detail(), "variable \"depth\" has a single value");
  fields = good;
  fields[0].txtTerms = "1E10";
  EXPECT_EQ(errorOfCapture().detail(), "the degree of variable \"speed\" is out of range");
  fields = good;
  fields[1].txtPoints = "-1E10";
  EXPECT_EQ(errorOfCapture().detail(), "the number of values of variable \"depth\" is out of range");
  fields[0].txtPoints = fields[1].txtPoints = "46341";
  EXPECT_EQ(errorOfCapture().detail(), "the grid has more points than can be counted");
}

TEST_F(CaptureSpecsTest, AStepBeyondTheRangeOverflows) {
  fields[0].txtLL = "-1E308";
  fields[0].txtUL = "1E308";
  EXPECT_EQ(errorOfCapture().number(), ErrorNumber::Overflow);
}

TEST_F(CaptureSpecsTest, AMiddleBeyondTheRangeOverflows) {
  fields[0].txtLL = "1E308";
  fields[0].txtUL = "1.5E308";
  CaptureSpecs(model, fields);
  fields[0].txtExpansion = "*";
  EXPECT_EQ(errorOfCapture().number(), ErrorNumber::Overflow);
}

TEST_F(CaptureSpecsTest, AnEquallySpacedValueBeyondTheRangeOverflows) {
  CaptureSpecs(model, fields);
  model.Step[1] = 1e308;
  EXPECT_THROW(RegenerateSpacedValues(model, spacedMarks(fields)), RunTimeError);
}

TEST_F(CaptureSpecsTest, OnlyTickedVariablesGetEquallySpacedValues) {
  CaptureSpecs(model, fields);
  EXPECT_EQ(model.X0, (std::vector<double>{0, 1, 2, 3, 4}));
  EXPECT_EQ(model.X1, (std::vector<double>{-1, 0, 1}));
}

TEST_F(CaptureSpecsTest, SpacedValuesAreTheLimitPlusStepsToTheLastBit) {
  fields[0] = {".1", ".7", "2", "8", "0", true};
  CaptureSpecs(model, fields);
  ASSERT_EQ(model.X0.size(), 8u);
  const double step = (0.7 - 0.1) / 7;
  for (int i = 0; i < 8; ++i) EXPECT_EQ(model.X0[i], 0.1 + i * step);
}

TEST_F(CaptureSpecsTest, RegeneratingFollowsTheLastCaptureAndTheMarksGiven) {
  CaptureSpecs(model, fields);
  model.X0 = model.X1 = {};
  RegenerateSpacedValues(model, {true, false, false, false});
  EXPECT_EQ(model.X0, (std::vector<double>{0, 2.5, 5, 7.5, 10}));
  EXPECT_TRUE(model.X1.empty());
}

TEST_F(CaptureSpecsTest, TheMarksAreThoseOfTheFields) {
  EXPECT_EQ(spacedMarks(fields), (PerVariable<bool>{false, true, false, false}));
}

}  // namespace
}  // namespace tavimor
