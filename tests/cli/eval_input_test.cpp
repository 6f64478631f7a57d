#include <gmock/gmock.h>

#include "cli/cli.h"
#include "cli/input_lines.h"
#include "support/example.h"

namespace tavimor {
namespace {

using test::Outcome;
using test::tavimorCli;

class EvalInput : public test::CommandTest {
 protected:
  Outcome evalLine(const std::string& input) { return tavimorCli({"eval", line()}, input); }

  // The problem of two variables, x + 10 y.
  std::string plane() {
    return writePair("plane",
                     test::fileText({" 1 ", R"("x",0,1,0,#TRUE#,0,1)", R"("y",0,1,0,#TRUE#,0,1)", "#TRUE#", " 0 ",
                                     " 1 ", " 10 ", " 0 "}),
                     test::fileText({" 1 ", " 1 ", "#FALSE#", " 1 ", "#FALSE#", " 0 ", " 1 ", " 0 ", " 1 ", " 0 ",
                                     " 10 ", " 1 ", " 11 ", "4,1,0,0,5.5,5.5"}));
  }
};

TEST_F(EvalInput, GivesAnEstimateForEachLine) {
  const Outcome outcome = evalLine("0\n1\n-.5\n2.5\n");
  EXPECT_EQ(outcome.out, "3\n5\n2\n8\n");
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(outcome.exitCode, 0);
}

TEST_F(EvalInput, TakesBlanksTabsAndCommasBetweenTheValues) {
  EXPECT_EQ(tavimorCli({"eval", plane()}, "1 2\n1,2\n1, 2\n 1 ,2 \n1\t2\n").out, "21\n21\n21\n21\n21\n");
}

TEST_F(EvalInput, TakesLinesThatEndInCrLf) { EXPECT_EQ(evalLine("0\r\n1\r\n").out, "3\n5\n"); }

TEST_F(EvalInput, TheLastLineNeedsNoEnd) { EXPECT_EQ(evalLine("0\n1").out, "3\n5\n"); }

TEST_F(EvalInput, SkipsBlankLinesAndCountsThem) {
  EXPECT_EQ(evalLine("\n0\n \t\r\n1\n\n").out, "3\n5\n");
  EXPECT_EQ(evalLine("\n\nx\n").err, "tavimor-cli: standard input: line 3: expected one number, for x, found \"x\"\n");
}

TEST_F(EvalInput, OneEstimateThatIsNotFiniteIsToldAtTheEnd) {
  const Outcome outcome = evalLine("0\nNAN\n1\n");
  EXPECT_EQ(outcome.exitCode, 3);
  EXPECT_EQ(outcome.out, "3\nNAN\n5\n");
  EXPECT_EQ(outcome.err, "tavimor-cli: " + (folder / "line") + ": an estimate is not a finite number\n");
}

TEST_F(EvalInput, NoLineGivesNoEstimate) {
  const Outcome outcome = evalLine("");
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.exitCode, 0);
}

struct BadLine {
  const char* line;
  const char* found;
};

TEST_F(EvalInput, ALineThatIsNoPointIsAnErrorWithItsNumber) {
  for (const BadLine& bad : {BadLine{"abc", "\"abc\""},
                             {"1 2 3", "\"1 2 3\""},
                             {"1", "\"1\""},
                             {"1,,2", "\"1,,2\""},
                             {"1 2x", "\"1 2x\""},
                             {"1 2,", "\"1 2,\""},
                             {"1\a2", "\"1?2\""}}) {
    const Outcome outcome = tavimorCli({"eval", plane()}, std::string("1 2\n") + bad.line + "\r\n3 4\n");
    EXPECT_EQ(outcome.exitCode, 1) << bad.line;
    EXPECT_EQ(outcome.out, "21\n") << bad.line;
    EXPECT_EQ(outcome.err,
              std::string("tavimor-cli: standard input: line 2: expected 2 numbers, one each for x, y, found ") +
                  bad.found + "\n");
  }
}

TEST_F(EvalInput, AnEndlessLineIsRefusedWithoutBeingHeld) {
  const Outcome outcome = evalLine("0\n" + std::string(4 * InputLines::kLongestLine, 'x'));
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.out, "3\n");
  EXPECT_EQ(outcome.err,
            "tavimor-cli: standard input: line 2: expected one number, for x, found a line that is too long\n");
}

TEST_F(EvalInput, ALineOfAnyLengthIsOnePointOrRefused) {
  for (const std::size_t blanks : {std::size_t{1000}, InputLines::kLongestLine - 3}) {
    const Outcome outcome = evalLine("0\n" + std::string(blanks, ' ') + "12\n1\n");
    EXPECT_EQ(outcome.exitCode, 0) << blanks;
    EXPECT_EQ(outcome.out, "3\n27\n5\n") << blanks;
  }
  for (std::size_t blanks = InputLines::kLongestLine - 2; blanks < InputLines::kLongestLine + 2; ++blanks) {
    const Outcome outcome = evalLine("0\n" + std::string(blanks, ' ') + "12\n");
    EXPECT_EQ(outcome.exitCode, 1) << blanks;
    EXPECT_EQ(outcome.out, "3\n") << blanks;
  }
}

TEST_F(EvalInput, ManyLinesComeOutInOrder) {
  std::string input, expected;
  for (int n = 0; n < 50000; ++n) {
    input += std::to_string(n) + "\n";
    expected += std::to_string(3 + 2 * n) + "\n";
  }
  EXPECT_EQ(evalLine(input).out, expected);
}

#ifndef _WIN32  // pipes and terminals of POSIX

TEST_F(EvalInput, AnEstimateAppearsBeforeTheNextLineIsSent) {
  const std::string problem = line();
  test::Pipe in, out;
  test::Process process(in.reading.number(), out.writing.number(), STDERR_FILENO, [&] {
    return test::execute(TAVIMOR_CLI, {"eval", problem});
  });
  out.writing.close();
  const auto send = [&](const std::string& bytes) {
    ASSERT_EQ(write(in.writing.number(), bytes.data(), bytes.size()), std::ssize(bytes));
  };
  send("1\n");
  EXPECT_EQ(test::readLine(out.reading), "5\n");
  send("2\n3");  // a whole line and the beginning of the next one
  EXPECT_EQ(test::readLine(out.reading), "7\n");
  send("0\n");
  EXPECT_EQ(test::readLine(out.reading), "63\n");
  in.writing.close();
  EXPECT_EQ(process.wait(), 0);
}

TEST_F(EvalInput, APersonAtATerminalIsToldWhatToType) {
  const std::string problem = plane();
  test::PseudoTerminal terminal;
  test::Pipe err;
  const std::string typed = "1 2\n\x04";  // Ctrl-D ends the input
  ASSERT_EQ(write(terminal.master.number(), typed.data(), typed.size()), std::ssize(typed));
  test::Pipe out;
  test::Process process(terminal.terminal.number(), out.writing.number(), err.writing.number(), [&] {
    return test::execute(TAVIMOR_CLI, {"eval", problem});
  });
  out.writing.close();
  err.writing.close();
  EXPECT_EQ(process.wait(), 0);
  EXPECT_EQ(test::readAll(out.reading), "21\n");
  EXPECT_EQ(test::readAll(err.reading), "Type points, one a line: 2 numbers, one each for x, y.\n");
}

#endif

}  // namespace
}  // namespace tavimor
