#include <gmock/gmock.h>

#include <cmath>

#include "cli/cli.h"
#include "formats/problem_json.h"
#include "runtime/number_text.h"
#include "support/example.h"
#include "support/stored.h"
#include "support/stored_problems.h"

namespace tavimor {
namespace {

using test::Outcome;
using test::readBytes;
using test::tavimorCli;
using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;

class ExportCommand : public test::CommandTest {
 protected:
  Outcome exported(const std::vector<std::string>& arguments) {
    std::vector<std::string> words = {"export", line()};
    words.insert(words.end(), arguments.begin(), arguments.end());
    return tavimorCli(words);
  }
};

TEST_F(ExportCommand, PrintsAFormulaNamedAfterTheFile) {
  const Outcome outcome = exported({"--to", "c"});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.err, "");
  EXPECT_THAT(outcome.out, AllOf(StartsWith("// line(x): a polynomial"), HasSubstr("double line(double x)")));
}

TEST_F(ExportCommand, WritesAFile) {
  const Outcome outcome = exported({"--to", "text", "-o", folder / "out"});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.out, "");
  EXPECT_THAT(readBytes(folder / "out"), testing::EndsWith("line(x) =\n    3\n  + 2*x\n"));
}

TEST_F(ExportCommand, TakesTheNameAndTheOptions) {
  const Outcome outcome =
      exported({"--to", "python", "--name", "my fit", "--checks", "0", "--within", "0.5", "--nan-outside"});
  EXPECT_THAT(outcome.out, AllOf(HasSubstr("def my_fit(x):"), testing::Not(HasSubstr("__main__")),
                                 HasSubstr("stays within 0.5 of the fit"), HasSubstr("the value is NaN")));
}

TEST_F(ExportCommand, WritesTheWholeProblemAsItIsStored) {
  const std::string problem = line();
  EXPECT_EQ(tavimorCli({"export", problem, "--to", "json", "-o", folder / "line.json"}).exitCode, 0);
  const StoredProblem read = readProblemJson(folder / "line.json");
  test::expectSameProblem(test::modelOf(read.problem, read.fit), test::stored(problem));
}

TEST_F(ExportCommand, WritesAWorkbookIntoAFileOnly) {
  EXPECT_EQ(exported({"--to", "xlsx", "-o", folder / "line.xlsx"}).exitCode, 0);
  EXPECT_THAT(readBytes(folder / "line.xlsx"), StartsWith("PK"));
  const Outcome outcome = exported({"--to", "xlsx"});
  EXPECT_EQ(outcome.exitCode, 2);
  EXPECT_THAT(outcome.err, HasSubstr("xlsx goes to a file: -o OUT is needed; see tavimor-cli export --help\n"));
}

TEST_F(ExportCommand, RefusesWhatDoesNotGoTogether) {
  EXPECT_THAT(exported({"--to", "cobol"}).err, HasSubstr("--to: one of c, c++, python"));
  EXPECT_THAT(exported({"--to", "c", "--within", "-1"}).err, HasSubstr("--within: a number above 0 is needed"));
  EXPECT_THAT(exported({"--to", "json", "--within", "1"}).err, HasSubstr("--within does not go with json"));
  EXPECT_EQ(exported({"--to", "c", "--checks", "-1"}).exitCode, 2);
  EXPECT_EQ(exported({}).exitCode, 2);
}

TEST_F(ExportCommand, SaysWhyThereIsNoFormula) {
  const std::string problem = tooHighDegree();
  const Outcome outcome = tavimorCli({"export", problem, "--to", "c", "-o", folder / "never"});
  EXPECT_EQ(outcome.exitCode, 3);
  EXPECT_THAT(outcome.err, HasSubstr("no fit: the degree of variable \"speed\""));
  EXPECT_THAT(test::namesIn(folder.path()), testing::Not(testing::Contains("never")));
}

TEST_F(ExportCommand, RefusesAFitThatHasOverflowed) {
  const std::string problem =
      writePair("inf", test::fileText({" 0 ", R"("x",0,1,0,#TRUE#,0,0)", "#TRUE#", " INF "}),
                test::fileText({" 0 ", " 1 ", "#FALSE#", " 0 ", " 1 ", " 5 ", " 6 ", "2,1,1,1,1,1"}));
  const Outcome outcome = tavimorCli({"export", problem, "--to", "c"});
  EXPECT_EQ(outcome.exitCode, 3);
  EXPECT_EQ(outcome.out, "");
  EXPECT_THAT(outcome.err, HasSubstr("no formula: a coefficient of the fit is no number"));
}

TEST_F(ExportCommand, TakesTheExactSolutionWhereThatIsAskedFor) {
  const std::string filip = test::examplePath("nist/filip");
  ASSERT_EQ(tavimorCli({"fit", filip, "--precise", "-o", folder / "precise"}).exitCode, 0);
  const Outcome outcome = tavimorCli({"export", filip, "--to", "json", "--precise"});
  EXPECT_EQ(outcome.exitCode, 2);
  const std::string formula = tavimorCli({"export", filip, "--to", "text", "--precise"}).out;
  const double constant = test::stored(folder / "precise").Coef(0, 0, 0, 0);
  EXPECT_THAT(formula, HasSubstr(numberText(std::abs(constant)).substr(0, 13)));
}

TEST_F(ExportCommand, TellsHowManyDigitsAreRight) {
  const std::string filip = test::examplePath("nist/filip");
  const std::string digits = "Right digits of the coefficients, of 15: ";
  EXPECT_THAT(exported({"--to", "r"}).out, HasSubstr("# " + digits + "15 in the worst"));
  EXPECT_THAT(exported({"--to", "r", "--no-check"}).out, testing::Not(HasSubstr(digits)));
  EXPECT_THAT(tavimorCli({"export", filip, "--to", "c"}).out, HasSubstr("// In each of them, - for noise:\n//   "));
  tavimorCli({"fit", filip, "--centre", "0", "--no-check", "-o", folder / "far"});
  EXPECT_THAT(tavimorCli({"export", folder / "far", "--to", "c"}).err, HasSubstr("no digit of the worst coefficient"));
  EXPECT_THAT(tavimorCli({"export", filip, "--to", "c", "--precise"}).out,
              HasSubstr("// " + digits + "15 in the worst"));
}

TEST_F(ExportCommand, TellsThatTheDataDetermineNoFit) {
  const std::string problem =
      writePair("doubt", test::fileText({" 0 ", R"("x",0,1,0,#TRUE#,0,1)", "#TRUE#", " 1 ", " 2 "}),
                test::fileText({" 0 ", " 1 ", "#FALSE#", " 1 ", " 1 ", " 5 ", " 6 ", "2,1,1,1,1,1"}));
  const Outcome outcome = tavimorCli({"export", problem, "--to", "text"});
  EXPECT_THAT(outcome.out, HasSubstr("The data determine no fit: variable \"x\" has 1 different value"));
  EXPECT_THAT(outcome.err, HasSubstr("the data determine no fit"));
}

TEST_F(ExportCommand, LeavesTheOldFileWhereItCannotWrite) {
  const Outcome outcome = exported({"--to", "c", "-o", folder / "nowhere/out.c"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_THAT(outcome.err, HasSubstr("nowhere/out.c: Run-time error '76': Path not found"));
}

using ResidualsCommand = test::CommandTest;

TEST_F(ResidualsCommand, PrintsATableOfEveryGridPoint) {
  const std::string problem =
      writePair("plane", test::fileText({" 1 ", R"("x",0,1,0,#TRUE#,0,1)", R"("a ""b""",0,1,0,#TRUE#,0,0)", "#FALSE#"}),
                test::fileText({" 1 ", " 1 ", "#FALSE#", " 1 ", "#FALSE#", " 0 ", " 1 ", " 0 ", " 2 ", " 1 ", " 3 ",
                                " 5 ", " 7.5 "}));
  const Outcome outcome = tavimorCli({"residuals", problem});
  EXPECT_EQ(outcome.exitCode, 0);
  const double scale = std::sqrt(5.125 / 2 * 0.5);  // s^2 (1 - h): four points, two terms, the sum of squares 5.125
  EXPECT_THAT(outcome.out, StartsWith("\"x\",\"a \"\"\"\"b\"\"\"\"\",given,estimated,residual,leverage,studentised\n"));
  EXPECT_THAT(outcome.out, HasSubstr("\n0.0,0.0,1.0,2.0,-1.0,0.5,-" + numberText(1 / scale).substr(0, 13)));
  EXPECT_THAT(outcome.out, HasSubstr("\n1.0,2.0,7.5,6.25,1.25,0.5," + numberText(1.25 / scale).substr(0, 13)));
  EXPECT_EQ(tavimorCli({"residuals", problem, "--no-check"}).out,
            test::text({"\"x\",\"a \"\"\"\"b\"\"\"\"\",given,estimated,residual", "0.0,0.0,1.0,2.0,-1.0",
                        "0.0,2.0,3.0,2.0,1.0", "1.0,0.0,5.0,6.25,-1.25", "1.0,2.0,7.5,6.25,1.25"}));
}

TEST_F(ResidualsCommand, WritesAFile) {
  EXPECT_EQ(tavimorCli({"residuals", line(), "-o", folder / "out.csv"}).out, "");
  EXPECT_THAT(readBytes(folder / "out.csv"), StartsWith("\"x\",given,estimated,residual,leverage,studentised\n"));
}

// A straight line has no residuals, and so no scale for them.
TEST_F(ResidualsCommand, LeavesWhatIsNotDefinedEmpty) {
  EXPECT_THAT(tavimorCli({"residuals", line()}).out, testing::EndsWith(",3.0,3.0,0.0,0.3333333333333333,\n"
                                                                       "1.0,5.0,5.0,0.0,0.8333333333333334,\n"));
}

TEST_F(ResidualsCommand, SaysWhyThereAreNoLeverages) {
  const std::string problem =
      writePair("doubt", test::fileText({" 0 ", R"("x",0,1,0,#TRUE#,0,1)", "#TRUE#", " 1 ", " 2 "}),
                test::fileText({" 0 ", " 1 ", "#FALSE#", " 1 ", " 1 ", " 5 ", " 6 ", "2,1,1,1,1,1"}));
  const Outcome outcome = tavimorCli({"residuals", problem});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_THAT(outcome.out, testing::EndsWith("1.0,6.0,3.0,3.0,,\n"));
  EXPECT_THAT(outcome.err, HasSubstr("no leverages: variable \"x\" has 1 different value"));
}

}  // namespace
}  // namespace tavimor
