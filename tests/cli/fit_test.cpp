#include <gmock/gmock.h>

#include "cli/cli.h"
#include "support/example.h"

namespace tavimor {
namespace {

using test::Example;
using test::examplePath;
using test::Outcome;
using test::readBytes;
using test::tavimorCli;
using testing::ElementsAre;
using testing::StartsWith;

class FittedExample : public testing::TestWithParam<const char*> {};

TEST_P(FittedExample, IsListedAsTheListHoldsIt) {
  Example example(GetParam());
  example.fit();
  const auto listing = test::linesOf([&](const LineSink& add) { ShowResults(example.model, example.model, add); });
  const Outcome outcome = tavimorCli({"fit", examplePath(GetParam())});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.out, test::printed(listing));
  EXPECT_EQ(outcome.err, "");
}

TEST_P(FittedExample, IsSavedAsTheEngineSavesIt) {
  const test::TemporaryFolder folder;
  Example example(GetParam());
  example.fit();
  test::save(example.model, example.fields, folder / "expected");
  EXPECT_EQ(tavimorCli({"fit", examplePath(GetParam()), "-o", folder / "saved"}).exitCode, 0);
  EXPECT_EQ(readBytes(folder / "saved"), readBytes(folder / "expected"));
  EXPECT_EQ(readBytes(folder / "saved.dat"), readBytes(folder / "expected.dat"));
}

INSTANTIATE_TEST_SUITE_P(Examples, FittedExample,
                         testing::Values("ozone", "heat-index", "sound-speed", "offset-print"));

using FitCommand = test::CommandTest;

TEST_F(FitCommand, PrintsNoBlanksAtTheEndOfALine) {
  const Outcome outcome = tavimorCli({"fit", line()});
  EXPECT_EQ(outcome.out,
            test::text({"              CORRELATION COEFFICIENT=1", "STANDARD ERROR OF ESTIMATE (UNBIASED)=0",
                        "                    SUM (RESIDUALS)^2=0", "           AVERAGE OF FUNCTION(GIVEN)=3",
                        "       AVERAGE OF FUNCTION(ESTIMATED)=3", "", "COEFFICIENTS:", "3",
                        "2" + std::string(23, ' ') + "*x", "", "", ""}));
}

TEST_F(FitCommand, LeavesTheProblemAsItWas) {
  const std::string problem = line();
  const std::string before = readBytes(problem) + readBytes(problem + ".dat");
  tavimorCli({"fit", problem});
  EXPECT_EQ(readBytes(problem) + readBytes(problem + ".dat"), before);
  EXPECT_THAT(test::namesIn(folder.path()), ElementsAre("line", "line.dat"));
}

TEST_F(FitCommand, SavesOverTheProblemItselfWhereThatIsNamed) {
  const std::string problem = line();
  EXPECT_EQ(tavimorCli({"fit", problem, "--output", problem}).exitCode, 0);
  EXPECT_EQ(readBytes(problem), test::fileText({" 0 ", R"("x",-1,1,0,#TRUE#,0,1)", "#TRUE#", " 3 ", " 2 "}));
  EXPECT_THAT(readBytes(problem + ".dat"), testing::EndsWith(test::fileText({"3,1,0,0,3,3"})));
}

TEST_F(FitCommand, ASingularProblemPrintsTheOneLine) {
  const Outcome outcome = tavimorCli({"fit", singular(), "-o", folder / "never", "--no-check"});
  EXPECT_EQ(outcome.exitCode, 3);
  EXPECT_EQ(outcome.out, "YIELDS SINGULAR MATRIX.\n");
  EXPECT_EQ(outcome.err, "");
  EXPECT_THAT(test::namesIn(folder.path()), ElementsAre("singular", "singular.dat"));
}

TEST_F(FitCommand, SaysWhyThereIsNoFit) {
  const std::string problem = tooHighDegree();
  const Outcome outcome = tavimorCli({"fit", problem});
  EXPECT_EQ(outcome.exitCode, 3);
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.err, "tavimor-cli: " + problem +
                             ": no fit: the degree of variable \"speed\" (2) is not below its number of values (2)\n");
}

TEST_F(FitCommand, AVariableWithASingleValueIsARunTimeError) {
  const std::string problem = singleValue();
  const Outcome outcome = tavimorCli({"fit", problem});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.err, "tavimor-cli: " + problem +
                             ": Run-time error '11': Division by zero (variable \"x\" has a single value)\n");
}

// The sum of the given values is an infinity, and no coefficient that comes of it is a number.
TEST_F(FitCommand, ResultsThatAreNotFiniteAreListedButNoFit) {
  const std::string problem = writePair(
      "huge", test::fileText({" 0 ", R"("x",-1,1,0,#TRUE#,0,1)", "#FALSE#"}),
      test::fileText({" 0 ", " 2 ", "#FALSE#", "-1 ", " 0 ", " 1 ", " 1.5E+308 ", " 1.5E+308 ", " 1.5E+308 "}));
  const Outcome outcome = tavimorCli({"fit", problem, "-o", folder / "never"});
  EXPECT_EQ(outcome.exitCode, 3);
  EXPECT_THAT(outcome.out, testing::HasSubstr("COEFFICIENTS:\nNAN\n"));
  EXPECT_EQ(outcome.err, "tavimor-cli: " + problem + ": not all results are finite numbers\n");
  EXPECT_THAT(test::namesIn(folder.path()), ElementsAre("huge", "huge.dat"));
}

TEST_F(FitCommand, PrintsTheListingEvenWhereItCannotBeSaved) {
  const Outcome outcome = tavimorCli({"fit", line(), "-o", folder / "nowhere/fitted"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_THAT(outcome.out, StartsWith("              CORRELATION COEFFICIENT=1\n"));
  EXPECT_EQ(outcome.err, "tavimor-cli: " + (folder / "nowhere/fitted.dat") + ": Run-time error '76': Path not found\n");
}

TEST_F(FitCommand, NamesInUtf8AndLatin1KeepTheColumns) {
  const std::string values = test::fileText({" 0 ", " 1 ", "#FALSE#", " 0 ", " 1 ", " 5 ", " 6 "});
  const auto record = [](const std::string& name) {
    return test::fileText({" 0 ", "\"" + name + "\",0,1,.5,#TRUE#,0,1", "#FALSE#"});
  };
  const std::string expected = "1" + std::string(23, ' ') + "*(größe-0.5)\n";
  const Outcome utf8 = tavimorCli({"fit", writePair("utf8", record("größe"), values)});
  const Outcome latin1 = tavimorCli({"fit", writePair("latin1",
                                                      record("gr\xF6\xDF"
                                                             "e"),
                                                      values)});
  EXPECT_THAT(utf8.out, testing::HasSubstr("\n" + expected));
  EXPECT_EQ(latin1.out, utf8.out);
}

}  // namespace
}  // namespace tavimor
