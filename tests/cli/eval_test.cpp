#include <gmock/gmock.h>

#include "cli/cli.h"
#include "engine/Compute.h"
#include "runtime/number_text.h"
#include "support/example.h"

namespace tavimor {
namespace {

using test::Outcome;
using test::tavimorCli;
using testing::HasSubstr;

class EvalCommand : public test::CommandTest {
 protected:
  void expectEstimate(const std::vector<std::string>& values, const std::string& estimate) {
    std::vector<std::string> arguments = {"eval", line()};
    arguments.insert(arguments.end(), values.begin(), values.end());
    const Outcome outcome = tavimorCli(arguments);
    EXPECT_EQ(outcome.out, estimate + "\n");
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(outcome.exitCode, 0);
  }

  void expectUsageError(const std::vector<std::string>& values, const std::string& found) {
    const std::string problem = line();
    std::vector<std::string> arguments = {"eval", problem};
    arguments.insert(arguments.end(), values.begin(), values.end());
    const Outcome outcome = tavimorCli(arguments);
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.err, "tavimor-cli: " + problem + ": expected one number, for x, found " + found +
                               "; see tavimor-cli eval --help\n");
  }
};

TEST_F(EvalCommand, TakesThePointFromItsArguments) { expectEstimate({"2.5"}, "8"); }
TEST_F(EvalCommand, TakesANegativeNumber) { expectEstimate({"-4"}, "-5"); }
TEST_F(EvalCommand, TakesANegativeNumberWithoutAZero) { expectEstimate({"-.5"}, "2"); }
TEST_F(EvalCommand, TakesAnExponent) { expectEstimate({"-1E-20"}, "3"); }
TEST_F(EvalCommand, TakesANegativeNumberBehindTheEndOfOptions) { expectEstimate({"--", "-.5"}, "2"); }
TEST_F(EvalCommand, TakesSeveralValuesFromOneWordAsFromALine) {
  const std::string estimate = tavimorCli({"eval", test::examplePath("heat-index"), "90", "70"}).out;
  for (const std::vector<std::string>& words :
       {std::vector<std::string>{"90,70"}, {"90 70"}, {"90,", "70"}, {" 90 , 70 "}, {"90", ",70"}}) {
    std::vector<std::string> arguments = {"eval", test::examplePath("heat-index")};
    arguments.insert(arguments.end(), words.begin(), words.end());
    EXPECT_EQ(tavimorCli(arguments).out, estimate) << words[0];
  }
  EXPECT_EQ(tavimorCli({"eval", test::examplePath("heat-index"), "-90,-70"}).err, "");
}

// Horner's scheme begins with 0 times the offset.
TEST_F(EvalCommand, AnEstimateThatIsNotFiniteIsPrintedButNoResult) {
  const std::string problem = line();
  for (const std::string value : {"NAN", "INF", "-INF"}) {
    const Outcome outcome = tavimorCli({"eval", problem, value});
    EXPECT_EQ(outcome.exitCode, 3);
    EXPECT_EQ(outcome.out, "NAN\n");
    EXPECT_EQ(outcome.err, "tavimor-cli: " + problem + ": an estimate is not a finite number\n");
  }
}

TEST_F(EvalCommand, TakesNegativeNumbersAnywhereAmongTheValues) {
  test::Example example("heat-index");
  example.fit();
  for (const auto& [t, r] : {std::pair{80.0, -0.5}, {-0.5, 80.0}, {-0.5, -0.25}}) {
    example.model.t = {t, r, 0, 0};
    Evaluate(example.model);
    const Outcome outcome = tavimorCli({"eval", test::examplePath("heat-index"), writtenNumber(t), writtenNumber(r)});
    EXPECT_EQ(outcome.out, numberText(example.model.S3) + "\n") << t << ", " << r;
  }
}

TEST_F(EvalCommand, TooManyValuesAreWrongUsage) { expectUsageError({"1", "2"}, "\"1 2\""); }
TEST_F(EvalCommand, AWordIsNoValue) { expectUsageError({"one"}, "\"one\""); }
TEST_F(EvalCommand, ADecimalCommaIsNoValue) { expectUsageError({"1,5"}, "\"1,5\""); }
TEST_F(EvalCommand, AnEmptyArgumentIsNoValue) {
  expectUsageError({""}, "\"\"");
  expectUsageError({"1", ""}, "\"1\"");
}

TEST_F(EvalCommand, NamesTheVariablesThatThePointNeeds) {
  const Outcome outcome = tavimorCli({"eval", test::examplePath("sound-speed"), "10", "35"});
  EXPECT_EQ(outcome.exitCode, 2);
  EXPECT_THAT(outcome.err, HasSubstr(": expected 3 numbers, one each for T, S, D, found \"10 35\";"));
}

// A stored fit that no computation gives shows which one is used.
TEST_F(EvalCommand, UsesTheStoredFit) {
  const std::string problem =
      writePair("stored", test::fileText({" 0 ", R"("x",0,1,0,#TRUE#,0,1)", "#TRUE#", " 100 ", " 7 "}),
                test::fileText({" 0 ", " 1 ", "#FALSE#", " 0 ", " 1 ", " 5 ", " 6 ", "2,1,0,0,5.5,5.5"}));
  EXPECT_EQ(tavimorCli({"eval", problem, "2"}).out, "114\n");
}

TEST_F(EvalCommand, ASingularProblemHasNoEstimate) {
  const std::string problem = singular();
  const Outcome outcome = tavimorCli({"eval", problem, "1"});
  EXPECT_EQ(outcome.exitCode, 3);
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.err, "tavimor-cli: " + problem + ": YIELDS SINGULAR MATRIX.\n");
}

TEST_F(EvalCommand, SaysWhyThereIsNoFit) {
  const Outcome outcome = tavimorCli({"eval", tooHighDegree(), "1"});
  EXPECT_EQ(outcome.exitCode, 3);
  EXPECT_EQ(outcome.out, "");
  EXPECT_THAT(outcome.err, HasSubstr(": no fit: the degree of variable \"speed\" (2)"));
}

}  // namespace
}  // namespace tavimor
