#include <gmock/gmock.h>

#include "cli/cli.h"

namespace tavimor {
namespace {

using test::Outcome;
using test::tavimorCli;
using testing::AllOf;
using testing::HasSubstr;

struct UsageCase {
  const char* name;
  std::vector<std::string> arguments;
  const char* complaint;
  const char* call;
};

void PrintTo(const UsageCase& usage, std::ostream* out) { *out << usage.name; }

std::vector<UsageCase> usageCases() {
  return {
      {"NoCommand", {}, "a command is needed", "tavimor-cli"},
      {"AnUnknownCommand", {"frob", "x"}, "no such command: \"frob\"", "tavimor-cli"},
      {"AnUnknownOption", {"fit", "p", "--frob"}, "unexpected argument \"--frob\"", "tavimor-cli fit"},
      {"NoProblem", {"fit"}, "PROBLEM is required", "tavimor-cli fit"},
      {"AnEmptyProblem", {"show", ""}, "PROBLEM: a file name is needed", "tavimor-cli show"},
      {"TwoProblems", {"report", "p", "q", "r"}, "unexpected argument \"q\"", "tavimor-cli report"},
      {"NoTarget", {"copy", "p"}, "OUT is required", "tavimor-cli copy"},
      {"AnEmptyTarget", {"copy", "p", ""}, "OUT: a file name is needed", "tavimor-cli copy"},
      {"AnEmptyOutput", {"fit", "p", "-o", ""}, "--output: a file name is needed", "tavimor-cli fit"},
      {"AnOutputWithoutAName", {"fit", "p", "-o"}, "--output: a file name is needed", "tavimor-cli fit"},
      {"ADegreeWithoutANumber", {"fit", "p", "--degree"}, "--degree: a value is needed", "tavimor-cli fit"},
      {"AnUnknownOptionOfAnalyse", {"analyse", "p", "--frob"}, "unexpected argument \"--frob\"", "tavimor-cli analyse"},
      {"NoProblemForATable", {"import", "t"}, "OUT is required", "tavimor-cli import"},
      {"AnUnknownHeader",
       {"import", "t", "p", "--header", "perhaps"},
       "--header: perhaps not in {yes,no}",
       "tavimor-cli import"},
      {"ADegreeThatIsNoNumber",
       {"import", "t", "p", "--degree", "two"},
       "Could not convert: --degree = two",
       "tavimor-cli import"},
      {"ASeparatorOfTwoCharacters",
       {"import", "t", "p", "--separator", "::"},
       "t: --separator: comma, semicolon, tab, blank or one character",
       "tavimor-cli import"},
      {"TwoOutputs", {"fit", "p", "-o", "a", "-o", "b"}, "--output: given more than once", "tavimor-cli fit"},
      {"AnUnknownOptionAlone", {"--frob"}, "unexpected argument \"--frob\"", "tavimor-cli"},
      {"AnOptionAmongValues", {"eval", "p", "1", "-x"}, "unexpected argument \"-x\"", "tavimor-cli eval"},
  };
}

class WrongUsage : public testing::TestWithParam<UsageCase> {};

TEST_P(WrongUsage, IsToldInOneLineThatSaysWhereToLook) {
  const Outcome outcome = tavimorCli(GetParam().arguments);
  EXPECT_EQ(outcome.exitCode, 2);
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.err,
            std::string("tavimor-cli: ") + GetParam().complaint + "; see " + GetParam().call + " --help\n");
}

INSTANTIATE_TEST_SUITE_P(Cases, WrongUsage, testing::ValuesIn(usageCases()),
                         [](const auto& usage) { return usage.param.name; });

class HelpOfCommand : public testing::TestWithParam<const char*> {};

TEST_P(HelpOfCommand, ShowsItsUseAndAnExample) {
  for (const std::string option : {"--help", "-h"}) {
    const Outcome outcome = tavimorCli({GetParam(), option});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.err, "");
    const std::string call = std::string("tavimor-cli ") + GetParam();
    EXPECT_THAT(outcome.out,
                AllOf(HasSubstr("Usage: " + call + " [OPTIONS] PROBLEM"), HasSubstr("Example:\n  " + call)));
  }
}

INSTANTIATE_TEST_SUITE_P(Commands, HelpOfCommand,
                         testing::Values("fit", "show", "eval", "analyse", "degrees", "report", "copy", "export",
                                         "residuals"));

TEST(Help, ListsTheCommandsWithAnExampleOfEach) {
  const Outcome outcome = tavimorCli({"--help"});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.err, "");
  for (const std::string command :
       {"fit", "show", "eval", "analyse", "degrees", "report", "copy", "import", "export", "residuals"})
    EXPECT_THAT(outcome.out, AllOf(HasSubstr("\n  " + command + " "), HasSubstr("\n  tavimor-cli " + command + " ")));
}

TEST(Help, OfReportSaysThatItDoesNotFit) {
  EXPECT_THAT(tavimorCli({"report", "--help"}).out, HasSubstr("it does not fit"));
}

TEST(Help, WinsOverNegativeNumbers) {
  EXPECT_THAT(tavimorCli({"eval", "p", "-1", "--help"}).out, HasSubstr("Usage: tavimor-cli eval"));
}

TEST(Version, IsPrintedAlone) {
  const Outcome outcome = tavimorCli({"--version"});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.out, "tavimor-cli " TAVIMOR_VERSION "\n");
  EXPECT_EQ(outcome.err, "");
}

// Only the command that takes numbers takes a minus sign for one.
TEST(FileNames, MayLookLikeNegativeNumbersBehindTheEndOfOptions) {
  const Outcome outcome = tavimorCli({"fit", "--", "-.5"});
  EXPECT_EQ(outcome.err, "tavimor-cli: -.5: Run-time error '53': File not found\n");
}

}  // namespace
}  // namespace tavimor
