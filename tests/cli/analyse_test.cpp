#include <gmock/gmock.h>

#include <cmath>
#include <nlohmann/json.hpp>

#include "analysis/statistic_texts.h"
#include "cli/cli.h"
#include "runtime/number_text.h"
#include "support/document.h"
#include "support/example.h"
#include "support/pair_files.h"

namespace tavimor {
namespace {

using nlohmann::json;
using test::examplePath;
using test::Outcome;
using test::tavimorCli;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class AnalyseCommand : public test::CommandTest {
 protected:
  static json analysed(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), "analyse");
    arguments.push_back("--json");
    return json::parse(tavimorCli(arguments).out);
  }

  // Saved with a fit, and the last value of the function changed afterwards.
  std::string changedAfterTheFit() {
    const std::string problem = folder / "changed";
    tavimorCli({"fit", line(), "-o", problem});
    std::string values = test::readBytes(problem + ".dat");
    values.replace(values.find(" 5 "), 3, " 6 ");
    test::writeBytes(problem + ".dat", values);
    return problem;
  }
};

TEST_F(AnalyseCommand, TellsVerdictDigitsStatisticsAndRemedy) {
  const Outcome outcome = tavimorCli({"analyse", examplePath("nist/wampler1"), "--centre", "0"});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.err, "");
  EXPECT_THAT(outcome.out, StartsWith("The exact least-squares solution is known"));
  EXPECT_THAT(outcome.out, HasSubstr("Listed are the results of a fit made now."));
  EXPECT_THAT(outcome.out, HasSubstr("REMEDY: with the centre in the middle"));
  for (const StatisticText& text : statisticTexts()) EXPECT_THAT(outcome.out, HasSubstr(text.definition));
}

TEST_F(AnalyseCommand, HasTheOtherSpellingsToo) {
  EXPECT_EQ(tavimorCli({"analyze", examplePath("ozone"), "--center", "1"}).out,
            tavimorCli({"analyse", examplePath("ozone"), "--centre", "1"}).out);
}

TEST_F(AnalyseCommand, ListsWhatTheFilesHold) {
  tavimorCli({"fit", line(), "-o", folder / "fitted"});
  EXPECT_THAT(tavimorCli({"analyse", folder / "fitted"}).out, HasSubstr("results that the problem was saved with."));
}

TEST_F(AnalyseCommand, SaysThatStoredResultsAreNotTheFitOfTheData) {
  EXPECT_THAT(tavimorCli({"analyse", changedAfterTheFit()}).out, HasSubstr("they are NOT the fit of the data"));
}

TEST_F(AnalyseCommand, TakesPreciseResultsForTheFitOfTheirData) {
  tavimorCli({"fit", examplePath("nist/filip"), "--centre", "0", "--precise", "-o", folder / "precise"});
  const std::string out = tavimorCli({"analyse", folder / "precise"}).out;
  EXPECT_THAT(out, HasSubstr("results that the problem was saved with."));
  EXPECT_GE(analysed({folder / "precise"})["worst_digits"], 14);
}

TEST_F(AnalyseCommand, SaysThatTheDataDetermineNoFit) {
  const Outcome outcome = tavimorCli({"analyse", singular()});
  EXPECT_EQ(outcome.exitCode, 3);
  EXPECT_EQ(outcome.out, "The data determine no fit: variable \"x\" has 1 different value, and its degree is 1.\n");
  const json object = analysed({singular()});
  EXPECT_EQ(object["verdict"], "not determined");
  EXPECT_TRUE(object["statistics"].is_null());
  EXPECT_TRUE(object["remedy"].is_null());
}

TEST_F(AnalyseCommand, PrintsCertifiedNumbersAsJson) {
  const json object = analysed({examplePath("nist/filip"), "--centre", "0"});
  EXPECT_EQ(object["verdict"], "exact");
  EXPECT_EQ(object["points"], 82);
  EXPECT_EQ(object["terms"], 11);
  EXPECT_EQ(object["worst_digits"], 0);
  EXPECT_NEAR(object["coefficients"][10]["precise"].get<double>(), -4.02962525080404E-05, 5e-20);
  EXPECT_NEAR(object["coefficients"][0]["standard_error"].get<double>(), 298.084530995537, 1e-11);
  EXPECT_EQ(object["coefficients"][3]["powers"], json({3}));
  EXPECT_EQ(object["coefficients"][3]["term"], "x^3");
  EXPECT_EQ(object["remedy"]["action"], "centre in the middle");
  EXPECT_GT(object["remedy"]["digits_then"], object["remedy"]["digits_now"]);
}

TEST_F(AnalyseCommand, TakesOtherDegreesAndLevels) {
  const json narrow = analysed({examplePath("ozone"), "--level", "0.5"});
  const json wide = analysed({examplePath("ozone"), "--level", "0.99", "--degree", "2"});
  EXPECT_EQ(wide["terms"], 3);
  EXPECT_GT(narrow["coefficients"][0]["low"], wide["coefficients"][0]["low"]);
}

TEST_F(AnalyseCommand, ReadsTheDataAsStoredWhereAsked) {
  const json typed = analysed({examplePath("nist/filip"), "--centre", "0"});
  const json stored = analysed({examplePath("nist/filip"), "--centre", "0", "--as-stored"});
  EXPECT_NE(typed["coefficients"][0]["precise"], stored["coefficients"][0]["precise"]);
}

TEST_F(AnalyseCommand, MarksNoise) {
  const json object = analysed({examplePath("sound-speed")});
  int noise = 0;
  for (const json& one : object["coefficients"])
    if (one["noise"]) {
      ++noise;
      EXPECT_TRUE(one["digits"].is_null());
    }
  EXPECT_EQ(noise, 23);
}

TEST_F(AnalyseCommand, RefusesWhatDoesNotGoWithTheProblem) {
  struct Refused {
    std::vector<std::string> options;
    std::string complaint;
  };
  for (const auto& [options, complaint] : std::vector<Refused>{
           {{"--level", "1"}, "--level: \"1\" is not between 0 and 1"},
           {{"--level", "x"}, "--level: \"x\" is not between 0 and 1"},
           {{"--centre", "0,0"}, "--centre: 2 numbers, but the problem has 1 variable"},
           {{"--centre", ""}, "--centre: a value is needed"},
           {{"--degree", ""}, "--degree: a value is needed"},
           {{"--centre", "near"}, "--centre: \"near\" is no number and not *"},
           {{"--degree", "3"}, "--degree: the degree of variable \"x\" (3) is not below its number of values (3)"},
           {{"--degree", "1.5"}, "--degree: \"1.5\" is no degree"}}) {
    std::vector<std::string> words = {"analyse", line()};
    words.insert(words.end(), options.begin(), options.end());
    const Outcome outcome = tavimorCli(words);
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_EQ(outcome.out, "");
    EXPECT_THAT(outcome.err, HasSubstr(": " + complaint + "; see tavimor-cli analyse --help\n"));
  }
}

TEST_F(AnalyseCommand, APageShowsItsJson) {
  const test::Document page("analysis-json.md");
  test::writeBytes(folder / "gauge", test::withCrLf(page.block("gauge")));
  test::writeBytes(folder / "gauge.dat", test::withCrLf(page.block("gauge.dat")));
  json wanted = json::parse(page.block("analysis"));
  wanted["problem"] = folder / "gauge";
  EXPECT_EQ(json::parse(tavimorCli({"analyse", folder / "gauge", "--json"}).out), wanted);
  EXPECT_EQ(json::parse(tavimorCli({"degrees", folder / "gauge", "--json"}).out), json::parse(page.block("degrees")));
}

using DegreesCommand = test::CommandTest;

TEST_F(DegreesCommand, MarksTheRecommendedCombination) {
  const Outcome outcome = tavimorCli({"degrees", examplePath("silicon-index")});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_THAT(outcome.out, StartsWith("DEGREES"));
  EXPECT_THAT(outcome.out, HasSubstr("recommended\n"));
}

TEST_F(DegreesCommand, ListsAllCombinationsWhereAsked) {
  const auto count = [](const std::vector<std::string>& words) {
    return json::parse(tavimorCli(words).out)["combinations"].size();
  };
  const std::string problem = examplePath("silicon-index");
  EXPECT_EQ(count({"degrees", problem, "--max", "3,2", "--all", "--json"}), 12u);
  EXPECT_LT(count({"degrees", problem, "--max", "3,2", "--json"}), 12u);
}

TEST_F(DegreesCommand, RefusesDegreesThatFindNoRoom) {
  const Outcome outcome = tavimorCli({"degrees", line(), "--max", "7"});
  EXPECT_EQ(outcome.exitCode, 2);
  EXPECT_THAT(outcome.err,
              HasSubstr("--max: the degree of variable \"x\" (7) is not below its number of values (3); see "));
}

TEST_F(DegreesCommand, AMissingProblemIsAnError) {
  EXPECT_EQ(tavimorCli({"degrees", folder / "none"}).exitCode, 1);
  EXPECT_EQ(tavimorCli({"analyse", folder / "none"}).exitCode, 1);
}

using FitOptionsOfTheCommand = test::CommandTest;

TEST_F(FitOptionsOfTheCommand, TakeOtherDegreesAndCentres) {
  const Outcome outcome = tavimorCli({"fit", line(), "--degree", "2", "--centre", "1", "-o", folder / "moved"});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_THAT(test::readBytes(folder / "moved"), HasSubstr("\"x\",-1,1,1,#TRUE#,0,2"));
}

TEST_F(FitOptionsOfTheCommand, ListAndSaveThePreciseCoefficients) {
  const Outcome outcome =
      tavimorCli({"fit", examplePath("nist/wampler1"), "--centre", "0", "--precise", "-o", folder / "precise"});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_THAT(outcome.out, StartsWith("PRECISE: "));
  EXPECT_THAT(outcome.out, HasSubstr("\n1                       *x^5"));
  EXPECT_EQ(tavimorCli({"eval", folder / "precise", "2"}).out, "63\n");
}

TEST_F(FitOptionsOfTheCommand, PreciseNeedsASolution) {
  const Outcome outcome = tavimorCli({"fit", singular(), "--precise", "-o", folder / "never"});
  EXPECT_EQ(outcome.exitCode, 3);
  EXPECT_EQ(outcome.out, "");
  EXPECT_THAT(outcome.err, HasSubstr(": no precise fit: variable \"x\" has 1 different value"));
  EXPECT_THAT(test::namesIn(folder.path()), Not(testing::Contains("never")));
}

TEST_F(FitOptionsOfTheCommand, WarnOfFewRightDigits) {
  const std::string problem = examplePath("nist/filip");
  const Outcome outcome = tavimorCli({"fit", problem, "--centre", "0"});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.err, "tavimor-cli: " + problem +
                             ": no digit of the worst coefficient is right; \"tavimor-cli analyse " + problem +
                             "\" tells more\n");
  const Outcome unchecked = tavimorCli({"fit", problem, "--centre", "0", "--no-check"});
  EXPECT_EQ(unchecked.err, "");
  EXPECT_EQ(unchecked.out, outcome.out);
}

TEST_F(FitOptionsOfTheCommand, WarnThatTheDataDetermineNoFit) {
  EXPECT_THAT(tavimorCli({"fit", singular()}).err,
              HasSubstr(": the data determine no fit: variable \"x\" has 1 different "));
}

TEST_F(FitOptionsOfTheCommand, WarnThatNoDigitsAreCertified) {
  std::string values = " 0 \n 29 \n#FALSE#\n";
  for (int n = 0; n < 30; ++n) values += " " + numberText(std::pow(10.0, -0.4 * n)) + " \n";
  for (int n = 0; n < 30; ++n) values += " " + std::to_string(n % 7) + " \n";
  const std::string record = test::fileText({" 0 ", R"("x",2.51188643150958E-12,1,0,#TRUE#,0,12)", "#FALSE#"});
  const std::string problem = writePair("decades", record, test::withCrLf(values));
  const Outcome outcome = tavimorCli({"fit", problem});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.err, "tavimor-cli: " + problem +
                             ": how many digits are right cannot be certified: the values of variable \"x\" are too "
                             "uneven for its degree, or lie too close together; \"tavimor-cli analyse " +
                             problem + "\" tells more\n");
  EXPECT_EQ(tavimorCli({"fit", problem, "--no-check"}).err, "");
}

using EvalIntervals = test::CommandTest;

TEST_F(EvalIntervals, HaveEstimateErrorAndBothIntervals) {
  const Outcome outcome = tavimorCli({"eval", examplePath("ozone"), "--interval", "--level", "0.9", "500"});
  EXPECT_EQ(outcome.exitCode, 0);
  std::istringstream numbers(outcome.out);
  double estimate = 0, error = 0, low = 0, high = 0, predictionLow = 0, predictionHigh = 0;
  ASSERT_TRUE(numbers >> estimate >> error >> low >> high >> predictionLow >> predictionHigh);
  EXPECT_NEAR(estimate, 500.796085936454, 1e-9);
  EXPECT_NEAR((low + high) / 2, estimate, 1e-9);
  EXPECT_LT(predictionLow, low);
  EXPECT_LT(high, predictionHigh);
}

TEST_F(EvalIntervals, AreUndefinedWithoutAFreedom) {
  EXPECT_EQ(tavimorCli({"eval", line(), "--interval", "0", "--level", ".5"}).out, "3 0 3 3 3 3\n");
  const std::string two = writePair("two", test::fileText({" 0 ", R"("x",0,1,0,#TRUE#,0,1)", "#FALSE#"}),
                                    test::fileText({" 0 ", " 1 ", "#FALSE#", " 0 ", " 1 ", " 5 ", " 6 "}));
  EXPECT_EQ(tavimorCli({"eval", two, "--interval", "-1"}).out, "4 - - - - -\n");
}

}  // namespace
}  // namespace tavimor
