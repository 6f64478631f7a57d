#include <gmock/gmock.h>

#include "cli/cli.h"
#include "report/report_lines.h"
#include "support/example.h"

namespace tavimor {
namespace {

using test::examplePath;
using test::fileText;
using test::Outcome;
using test::readBytes;
using test::tavimorCli;
using testing::HasSubstr;
using testing::Not;

using ShowCommand = test::CommandTest;

TEST_F(ShowCommand, PrintsTheSpecificationOfEachVariable) {
  const Outcome outcome = tavimorCli({"show", examplePath("sound-speed")});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(outcome.out, test::text({"",
                                     "           VARIABLE: T",
                                     "             DEGREE: 3",
                                     "        # OF POINTS: 8",
                                     "           INTERVAL: [ 2 , 30 ]",
                                     "CENTER OF EXPANSION: 0",
                                     "",
                                     "           VARIABLE: S",
                                     "             DEGREE: 1",
                                     "        # OF POINTS: 4",
                                     "           INTERVAL: [ 25 , 40 ]",
                                     "CENTER OF EXPANSION: 35",
                                     "",
                                     "           VARIABLE: D",
                                     "             DEGREE: 3",
                                     "        # OF POINTS: 9",
                                     "           INTERVAL: [ 0 , 8000 ]",
                                     "CENTER OF EXPANSION: 0",
                                     "",
                                     "NO FIT IS STORED."}));
}

// The stored record says waves. Capturing the specifications would make powers of them.
TEST_F(ShowCommand, PrintsTheStoredListingWithoutCapturing) {
  const std::string problem =
      writePair("waves", fileText({" 0 ", R"("t",0,1,0,#FALSE#,6.25,1)", "#TRUE#", " 100 ", " 7 "}),
                fileText({" 0 ", " 1 ", "#FALSE#", " 0 ", " 1 ", " 5 ", " 6 ", "2,.5,.25,.125,5.5,-5.5"}));
  const Outcome outcome = tavimorCli({"show", problem});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_THAT(outcome.out,
              testing::EndsWith(
                  test::text({"              CORRELATION COEFFICIENT=0.5", "STANDARD ERROR OF ESTIMATE (UNBIASED)=0.25",
                              "                    SUM (RESIDUALS)^2=0.125",
                              "           AVERAGE OF FUNCTION(GIVEN)=5.5", "       AVERAGE OF FUNCTION(ESTIMATED)=-5.5",
                              "", "COEFFICIENTS:", "100", "7" + std::string(23, ' ') + "*sin(t", "", "", ""})));
}

TEST_F(ShowCommand, ShowsAVariableWithASingleValue) {
  const Outcome outcome = tavimorCli({"show", singleValue()});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_THAT(outcome.out, HasSubstr("        # OF POINTS: 1\n"));
}

TEST_F(ShowCommand, ResultsThatAreNotFiniteAreNoFit) {
  const std::string problem = notFinite();
  for (const std::string command : {"show", "report"}) {
    const Outcome outcome = tavimorCli({command, problem});
    EXPECT_EQ(outcome.exitCode, 3) << command;
    EXPECT_THAT(outcome.out, HasSubstr("\nNAN                     *x\n"));
    EXPECT_EQ(outcome.err, "tavimor-cli: " + problem + ": not all results are finite numbers\n");
  }
}

class ReportOfExample : public testing::TestWithParam<const char*> {};

TEST_P(ReportOfExample, HasTheReportsLines) {
  test::Example example(GetParam());
  const auto lines = test::linesOf([&](const LineSink& print) { reportLines(example.model, example.model, print); });
  const Outcome outcome = tavimorCli({"report", examplePath(GetParam())});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.out, test::printed(lines));
  EXPECT_EQ(outcome.err, "");
}

INSTANTIATE_TEST_SUITE_P(Examples, ReportOfExample,
                         testing::Values("ozone", "heat-index", "sound-speed", "offset-print"));

using ReportCommand = test::CommandTest;

TEST_F(ReportCommand, HoldsTheStoredFit) {
  tavimorCli({"fit", line(), "-o", folder / "fitted"});
  EXPECT_THAT(tavimorCli({"report", folder / "fitted"}).out, HasSubstr("\n\nCOEFFICIENTS:\n\n3\n"));
  EXPECT_THAT(tavimorCli({"report", folder / "line"}).out, Not(HasSubstr("COEFFICIENTS")));
}

TEST_F(ReportCommand, EndsInItsRunTimeErrorAfterTheLinesBeforeIt) {
  const std::string record = ",0,1,0,#TRUE#,0,0";
  const std::string problem = writePair(
      "odd", fileText({" 3 ", "\"x\"" + record, "\"y\"" + record, "\"z\"" + record, "\"w\"" + record, "#FALSE#"}),
      fileText({" 3 ", " 1 ", "#FALSE#", " 1 ", "#FALSE#", " 1 ", "#FALSE#", " 2 ", "#FALSE#", " 0 ", " 1 ", " 0 ",
                " 1 ", " 0 ", " 1 ", " 0 ", " 1 ", " 2 "}) +
          [] {
            std::string zeros;
            for (int n = 0; n < 2 * 2 * 2 * 3; ++n) zeros += " 0 \r\n";
            return zeros;
          }());
  const Outcome outcome = tavimorCli({"report", problem});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.err, "tavimor-cli: " + problem +
                             ": Run-time error '9': Subscript out of range (variable \"z\" has no value 2)\n");
  const std::string values = test::text({"  y=0", "   x=0" + std::string(33, ' ') + "FUNCTION=0",
                                         "   x=1" + std::string(33, ' ') + "FUNCTION=0", "", "  y=1",
                                         "   x=0" + std::string(33, ' ') + "FUNCTION=0",
                                         "   x=1" + std::string(33, ' ') + "FUNCTION=0", "", ""});
  EXPECT_THAT(outcome.out, testing::EndsWith("\nDATA:\n\nw=0\n z=0\n" + values + " z=1\n" + values));
}

using CopyCommand = test::CommandTest;

TEST_F(CopyCommand, SavesTheSameBytes) {
  const Outcome outcome = tavimorCli({"copy", examplePath("offset-print"), folder / "copied"});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.out + outcome.err, "");
  EXPECT_EQ(readBytes(folder / "copied"), readBytes(examplePath("offset-print")));
  EXPECT_EQ(readBytes(folder / "copied.dat"), readBytes(examplePath("offset-print.dat")));
}

TEST_F(CopyCommand, NeverReplacesAFileThatIsNotTheSameHalfOfAProblem) {
  const std::string problem = writePair("problem", fileText({" 0 ", R"("x",0,1,0,#TRUE#,0,1)", "#FALSE#"}),
                                        fileText({" 0 ", " 1 ", "#TRUE#", " 0 ", " 1 ", " 5 ", " 6 "}));
  const std::string values = readBytes(problem + ".dat");
  const Outcome outcome = tavimorCli({"copy", problem, problem + ".dat"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.err, "tavimor-cli: " + problem +
                             ".dat: Not saved: the file is there already and is not the specification of a problem\n");
  EXPECT_EQ(tavimorCli({"fit", problem, "-o", problem + ".dat"}).exitCode, 1);
  EXPECT_EQ(readBytes(problem + ".dat"), values);
}

TEST_F(CopyCommand, ComputesNothing) {
  const std::string problem = singular();
  EXPECT_EQ(tavimorCli({"copy", problem, folder / "copied"}).exitCode, 0);
  EXPECT_EQ(readBytes(folder / "copied"), readBytes(problem));
}

TEST_F(CopyCommand, KeepsAStoredFit) {
  tavimorCli({"fit", line(), "-o", folder / "fitted"});
  EXPECT_EQ(tavimorCli({"copy", folder / "fitted", folder / "copied"}).exitCode, 0);
  EXPECT_EQ(readBytes(folder / "copied"), readBytes(folder / "fitted"));
  EXPECT_EQ(readBytes(folder / "copied.dat"), readBytes(folder / "fitted.dat"));
}

TEST_F(CopyCommand, PutsAHandMadeFileIntoTheProgramsForm) {
  const std::string problem =
      writePair("by-hand", "0\n\"x\", 0, 10, *, #FALSE#, *, 1\n#FALSE#\n", "0\n1\n#true#\n0, 10\n0.5, 1e0\n");
  EXPECT_EQ(tavimorCli({"copy", problem, folder / "copied"}).exitCode, 0);
  EXPECT_EQ(readBytes(folder / "copied"), fileText({" 0 ", R"("x",0,10,5,#TRUE#,6.28318530717959,1)", "#FALSE#"}));
  EXPECT_EQ(readBytes(folder / "copied.dat"), fileText({" 0 ", " 1 ", "#TRUE#", " 0 ", " 10 ", " .5 ", " 1 "}));
}

}  // namespace
}  // namespace tavimor
