#include "formats/problem_json.h"

#include <gmock/gmock.h>

#include <bit>
#include <cmath>
#include <limits>
#include <random>

#include "support/document.h"
#include "support/expect_error.h"
#include "support/pair_files.h"
#include "support/stored_problems.h"

namespace tavimor {
namespace {

StoredProblem throughJson(const Dimension& model) { return problemFromJson(problemJson(model, model), "p.json"); }

Dimension modelOf(const StoredProblem& read) { return test::modelOf(read.problem, read.fit); }

std::uint64_t bitsOf(double value) { return std::bit_cast<std::uint64_t>(value); }

class ProblemJsonPage : public test::PairTest {
 protected:
  std::string example() const { return test::Document("problem-json.md").block("gauge-fitted.json"); }

  Dimension pairOfTheExample() const {
    const test::Document page("file-format.md");
    writePair(test::withCrLf(page.block("gauge-fitted")), test::withCrLf(page.block("gauge-fitted.dat")));
    return read();
  }
};

TEST_F(ProblemJsonPage, ShowsWhatIsWritten) {
  const Dimension gauge = pairOfTheExample();
  EXPECT_EQ(problemJson(gauge, gauge), example());
}

TEST_F(ProblemJsonPage, ShowsWhatIsRead) {
  test::expectSameProblem(modelOf(problemFromJson(example(), "gauge.json")), pairOfTheExample());
}

TEST_F(ProblemJsonPage, ShowsTheMessageOfARefusal) {
  std::string text = example();
  text.replace(text.rfind("\"degree\": 1") + 10, 1, "\"one\"");
  test::expectBadFile(R"(variables[1].degree: expected a whole number from 0 to 2147483646, found "one")",
                      [&] { problemFromJson(text, "gauge.json"); });
}

TEST(ProblemJson, BringsRandomProblemsBackBitForBit) {
  std::mt19937_64 random(20261121);
  for (int n = 0; n < 300; ++n) {
    const Dimension model = test::randomProblem(random);
    const StoredProblem read = throughJson(model);
    test::expectSameProblem(modelOf(read), model);
    EXPECT_EQ(problemJson(read.problem, read.fit), problemJson(model, model));
  }
}

TEST(ProblemJson, BringsBackWhatIsNoNumberAndTheZeroWithASign) {
  Dimension model = test::gridProblem({4});
  const double infinity = std::numeric_limits<double>::infinity();
  const double odd[] = {infinity, -infinity, -0.0, std::numeric_limits<double>::quiet_NaN()};
  std::copy(std::begin(odd), std::end(odd), model.F.data());
  const Table4 read = throughJson(model).problem.F;
  for (std::size_t n = 0; n < 3; ++n) EXPECT_EQ(bitsOf(read.data()[n]), bitsOf(odd[n]));
  EXPECT_TRUE(std::isnan(read.data()[3]));
}

TEST(ProblemJson, KeepsTheValueOfAVariableThatHasOneOnly) {
  Dimension model = test::gridProblem({2, 1});
  model.X1[0] = 5;
  EXPECT_EQ(throughJson(model).problem.X1, std::vector<double>{5});
}

struct Refusal {
  const char* name;
  const char* replaced;
  const char* by;
  const char* message;
};

class RefusedJson : public testing::TestWithParam<Refusal> {};

TEST_P(RefusedJson, IsToldWithItsPlace) {
  std::string text = problemJson(test::gridProblem({3, 2}), {});
  const std::size_t at = text.find(GetParam().replaced);
  ASSERT_NE(at, std::string::npos);
  text.replace(at, std::string_view(GetParam().replaced).size(), GetParam().by);
  test::expectBadFile(GetParam().message, [&] { problemFromJson(text, "p.json"); });
}

INSTANTIATE_TEST_SUITE_P(
    ProblemJson, RefusedJson,
    testing::Values(
        Refusal{"NoJson", "\"version\": 1", "\"version\" 1", "line 3: expected JSON, found \"1\""},
        Refusal{"AnEarlyEnd", "null\n}\n", "null\n", "line 16: expected JSON, found nothing"},
        Refusal{"AnotherFormat", "tavimor-problem", "points", "format: expected \"tavimor-problem\", found \"points\""},
        Refusal{"ALaterVersion", "\"version\": 1", "\"version\": 2",
                "version: expected a whole number from 1 to 1, found 2"},
        Refusal{"AMissingItem", "\"centre\": 0.0, ", "",
                "variables[0].centre: expected an item of this name, found nothing"},
        Refusal{"AMisspeltItem", "\"centre\": 0.0", "\"center\": 0.0, \"centre\": 0.0",
                "variables[0]: expected no item of another name, found \"center\""},
        Refusal{"ABrokenName", "\"x\"", "\"x\\n\"",
                "variables[0].name: expected a name that a problem file can hold, found \"x\\n\""},
        Refusal{"ANameThatAFileWouldCut", "\"x\"", "\"5\\\" ,x\"",
                "variables[0].name: expected a name that a problem file can hold, found \"5\\\" ,x\""},
        Refusal{"ATextForANumber", "[0.0, 1.0, 2.0]", "[0.0, \"1\", 2.0]",
                "variables[0].values[1]: expected a number, \"INF\", \"-INF\" or \"NAN\", found \"1\""},
        Refusal{"NoValues", "[0.0, 1.0, 2.0]", "[]",
                "variables[0].values: expected an array of one number at least, found an array of 0"},
        Refusal{"AFunctionOfAnotherSize", "[0.0, 1.0, 2.0]", "[0.0, 1.0]",
                "function: expected nested arrays of 4 numbers, as the variables have it, found an array of 3"},
        Refusal{"AFunctionOfAnotherShape", "[100.0, 100.375]", "100.0, 100.375",
                "function: expected an array of 3 arrays, found an array of 4"},
        Refusal{"AFractionForADegree", "\"degree\": 1", "\"degree\": 1.5",
                "variables[0].degree: expected a whole number from 0 to 2147483646, found 1.5"},
        Refusal{"NoVariables", "\"variables\": [", "\"variables\": [], \"x\": [",
                "the whole: expected no item of another name, found \"x\""}),
    [](const auto& refusal) { return refusal.param.name; });

TEST(ProblemJson, HugeDegreesTakeNoMemory) {
  Dimension model = test::gridProblem({2, 2});
  test::pretendFit(model);
  std::string text = problemJson(model, model);
  for (std::size_t at; (at = text.find("\"degree\": 1,")) != std::string::npos;)
    text.replace(at, 11, "\"degree\": 2147483646");
  test::expectBadFile(
      "fit.coefficients: expected nested arrays of 4.61168601413242E+18 numbers, as the variables have it, found an "
      "array of 2",
      [&] { problemFromJson(text, "p.json"); });
}

TEST(ProblemJson, ATextNestedAMillionDeepIsRefused) {
  const std::string deep = std::string(1000000, '[') + std::string(1000000, ']');
  const std::string text = R"({"format": "tavimor-problem", "version": 1, "variables": [{"name": "x", "lower": 0,)"
                           R"("upper": 1, "centre": 0, "degree": 0, "equallySpaced": false, "periodFlag": true,)"
                           R"("period": 0, "values": [1, 2]}], "fit": null, "function": )" +
                           deep + "}";
  test::expectBadFile("function: expected nested arrays of 2 numbers, as the variables have it, found an array of 1",
                      [&] { problemFromJson(text, "p.json"); });
}

TEST(ProblemJson, AMissingFileIsARunTimeError) {
  test::expectError(ErrorNumber::PathNotFound, [] { readProblemJson("/nowhere/p.json"); });
}

}  // namespace
}  // namespace tavimor
