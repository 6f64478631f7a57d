#include <gtest/gtest.h>

#include "report/term_text.h"
#include "support/problem.h"

namespace tavimor {
namespace {

struct TermCase {
  const char* name;
  double centre;
  bool periodFlag;
  bool trigFlag;
  std::vector<const char*> texts;  // for the indices 0, 1, 2, ...
};

// The texts of one variable t; the two flags act each on its own.
std::vector<TermCase> termCases() {
  return {
      {"PowersAboutZero", 0, true, false, {"", "*t", "*t^2", "*t^3"}},
      {"PowersAboutAPositiveCentre", 1.5, true, false, {"", "*(t-1.5)", "*(t-1.5)^2", "*(t-1.5)^3"}},
      {"PowersAboutANegativeCentre", -2, true, false, {"", "*(t+2)", "*(t+2)^2"}},
      {"PowersAboutANegativeFraction", -0.25, true, false, {"", "*(t+0.25)"}},
      {"PowersAboutATinyCentre", 1.5e-7, true, false, {"", "*(t-1.5E-07)"}},
      {"WavesAboutZero",
       0,
       false,
       true,
       {"", "*sin(t)", "*cos(t)", "*sin(2*t)", "*cos(2*t)", "*sin(3*t)", "*cos(3*t)"}},
      {"WavesAboutAPositiveCentre",
       1,
       false,
       true,
       {"", "*sin(t-1)", "*cos(t-1)", "*sin(2*(t-1))", "*cos(2*(t-1))", "*sin(3*(t-1))"}},
      {"WavesAboutANegativeCentre", -1, false, true, {"", "*sin(t+1)", "*cos(t+1)", "*sin(2*(t+1))"}},
      // A file may say "no powers" while nothing closes the brackets.
      {"WavesWithoutTrigFlagAboutZero", 0, false, false, {"", "*sin(t", "*cos(t", "*sin(2*t", "*cos(2*t"}},
      {"WavesWithoutTrigFlagAboutACentre", 1, false, false, {"", "*sin(t-1)", "*cos(t-1)", "*sin(2*(t-1)"}},
      {"PowersWithTrigFlagAboutZero", 0, true, true, {"", "*t)", "*t)^2", "*t)^3"}},
      {"PowersWithTrigFlagAboutACentre", 1, true, true, {"", "*(t-1)", "*(t-1)^2", "*(t-1)^3)"}},
  };
}

class TermText : public testing::TestWithParam<TermCase> {};

TEST_P(TermText, IsWrittenByFlagsCentreAndIndex) {
  Dimension model = test::problem({{"t", {0, 1}, 0, GetParam().centre}});
  model.PeriodFlag[0] = GetParam().periodFlag;
  model.TrigFlag[0] = GetParam().trigFlag;
  Long index = 0;
  for (const char* text : GetParam().texts) {
    EXPECT_EQ(termText(model, {index, 0, 0, 0}), text) << "index " << index;
    ++index;
  }
}

INSTANTIATE_TEST_SUITE_P(Cases, TermText, testing::ValuesIn(termCases()),
                         [](const auto& set) { return set.param.name; });

TEST(TermTextOfVariables, JoinsTheFactorsInTheOrderOfTheVariables) {
  Dimension model = test::problem({{"x", {0, 1}, 0, 0}, {"y", {0, 1}, 0, 0.5}, {"z", {0, 1}, 0, -3}});
  EXPECT_EQ(termText(model, {2, 1, 0, 0}), "*x^2*(y-0.5)");
  EXPECT_EQ(termText(model, {2, 1, 12, 0}), "*x^2*(y-0.5)*(z+3)^12");
  EXPECT_EQ(termText(model, {0, 0, 12, 0}), "*(z+3)^12");
}

TEST(TermTextOfVariables, IndicesOfUndeclaredVariablesDoNotCount) {
  Dimension model = test::problem({{"x", {0, 1}, 0, 0}});
  EXPECT_EQ(termText(model, {1, 1, 0, 1}), "*x");
}

TEST(TermTextOfVariables, NamesStandAsEntered) {
  Dimension model = test::problem({{"a b", {0, 1}, 0, 0}, {" 2*\"q\"", {0, 1}, 0, 1}});
  EXPECT_EQ(termText(model, {2, 2, 0, 0}), "*a b^2*( 2*\"q\"-1)^2");
}

TEST(TermTextOfVariables, PowersAndWavesMixFreely) {
  Dimension model = test::problem({{"x", {0, 1}, 0, 0}, {"t", {0, 1}, 0, 0}});
  model.PeriodFlag[1] = false;
  model.TrigFlag[1] = true;
  EXPECT_EQ(termText(model, {3, 4, 0, 0}), "*x^3*cos(2*t)");
}

TEST(PlainTermText, HasNoMultiplicationInFrontAndIsOneForTheConstant) {
  const Dimension model = test::problem({{"x", {0, 1}, 1, 0}, {"y", {0, 1}, 1, 0.5}});
  EXPECT_EQ(plainTermText(model, {1, 1, 0, 0}), "x*(y-0.5)");
  EXPECT_EQ(plainTermText(model, {}), "1");
}

}  // namespace
}  // namespace tavimor
