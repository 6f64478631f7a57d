#include <gmock/gmock.h>

#ifndef _WIN32
#include <sys/resource.h>
#include <sys/stat.h>
#endif

#include "cli/cli.h"
#include "support/example.h"

namespace tavimor {
namespace {

using test::examplePath;
using test::Outcome;
using test::tavimorCli;

class Errors : public test::CommandTest {
 protected:
  void expectError(const std::vector<std::string>& arguments, const std::string& line) {
    const Outcome outcome = tavimorCli(arguments);
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.err, "tavimor-cli: " + line + "\n");
  }
};

TEST_F(Errors, AMissingProblem) {
  for (const std::string command : {"fit", "show", "eval", "report"})
    expectError({command, folder / "none"}, (folder / "none") + ": Run-time error '53': File not found");
  expectError({"copy", folder / "none", folder / "copy"}, (folder / "none") + ": Run-time error '53': File not found");
}

TEST_F(Errors, ANameThatWouldMakeTwoLinesOrReachTheTerminal) {
  expectError({"fit", folder / "a\nb\x1B[2Jc"}, (folder / "a\\nb\\x1B[2Jc") + ": Run-time error '53': File not found");
}

TEST_F(Errors, AMissingValuesFile) {
  test::writeBytes(folder / "half", test::readBytes(examplePath("ozone")));
  expectError({"fit", folder / "half"}, (folder / "half.dat") + ": Run-time error '53': File not found");
}

TEST_F(Errors, AMissingFolder) {
  expectError({"fit", folder / "no/where"}, (folder / "no/where") + ": Run-time error '76': Path not found");
}

TEST_F(Errors, AMissingFolderForTheCopy) {
  expectError({"copy", examplePath("ozone"), folder / "no/where"},
              (folder / "no/where.dat") + ": Run-time error '76': Path not found");
}

#ifndef _WIN32  // it knows no such limits

#ifndef __SANITIZE_ADDRESS__  // which takes terabytes of address space

// From a little more than the program itself takes to enough, over the point where no thread finds its stack.
TEST_F(Errors, LittleAddressSpaceIsAnErrorAndNoAbort) {
  const std::string path = folder / "grid";
  std::string values = "1\n199\n#FALSE#\n199\n#FALSE#\n";
  for (int n = 0; n < 200 + 200 + 200 * 200; ++n) values += std::to_string(n % 200) + "\n";
  writePair("grid", "1\nx,0,1,100,#TRUE#,0,40\ny,0,1,100,#TRUE#,0,40\n#FALSE#\n", values);
  constexpr rlim_t kMegabyte = rlim_t{1} << 20;
  const rlim_t program = std::filesystem::file_size(TAVIMOR_CLI);
  for (rlim_t limit = program; limit < program + 12 * kMegabyte; limit += kMegabyte / 4) {
    const test::Descriptor nowhere(open("/dev/null", O_WRONLY | O_CLOEXEC));
    test::Process process(STDIN_FILENO, nowhere.number(), nowhere.number(), [&] {
      const rlimit space = {limit, limit};
      setrlimit(RLIMIT_AS, &space);
      return test::execute(TAVIMOR_CLI, {"fit", path, "-o", folder / "fitted"});
    });
    EXPECT_GE(process.wait(), 0) << limit;
  }
}

#endif

TEST_F(Errors, ALimitForTheSizeOfFiles) {
  test::Pipe err;
  test::Process process(STDIN_FILENO, STDOUT_FILENO, err.writing.number(), [&] {
    const rlimit limit = {100, 100};
    setrlimit(RLIMIT_FSIZE, &limit);
    return test::execute(TAVIMOR_CLI, {"copy", examplePath("ozone"), folder / "copy"});
  });
  err.writing.close();
  EXPECT_EQ(test::readAll(err.reading), "tavimor-cli: " + (folder / "copy.dat") + ": Run-time error '61': Disk full\n");
  EXPECT_EQ(process.wait(), 1);
  EXPECT_TRUE(test::namesIn(folder.path()).empty());
}

#endif

TEST_F(Errors, AFolderIsNoProblem) {
  expectError({"fit", folder.path()}, folder.path() + ": Run-time error '75': Path/File access error");
}

TEST_F(Errors, AFileThatIsNoProblem) {
  test::writeBytes(folder / "bad", "7\r\n");
  expectError({"fit", folder / "bad"}, (folder / "bad") +
                                           ": line 1: expected the number of variables less one (a whole number from 0 "
                                           "to 3), found \"7\"");
}

TEST_F(Errors, AValuesFileThatEndsEarly) {
  const std::string problem = line();
  test::writeBytes(problem + ".dat", test::fileText({" 0 ", " 2 ", "#FALSE#", "-1 ", " 0 ", " 1 ", " 1 ", " 3 "}));
  expectError({"fit", problem},
              problem + ".dat: line 9: expected a value of the function (a number), found the end of the file");
}

#ifndef _WIN32  // it has no such device, and opens no folder as a file

TEST_F(Errors, AFullDevice) {
  const std::string full = "tavimor-cli: standard output: Run-time error '61': Disk full\n";
  for (const std::string command : {"fit", "show", "report"}) {
    const Outcome outcome = runOnFullDevice({command, examplePath("sound-speed")});
    EXPECT_EQ(outcome.exitCode, 1) << command;
    EXPECT_EQ(outcome.err, full) << command;
  }
  EXPECT_EQ(runOnFullDevice({"eval", examplePath("ozone"), "1"}).err, full);
  EXPECT_EQ(runOnFullDevice({"eval", examplePath("ozone")}, "1\n2\n").err, full);
  EXPECT_EQ(runOnFullDevice({"fit", singular()}).exitCode, 1);
}

TEST_F(Errors, HelpAndVersionOnAFullDevice) {
  for (const std::vector<std::string>& words : {std::vector<std::string>{"--help"}, {"--version"}, {"fit", "--help"}}) {
    const Outcome outcome = runOnFullDevice(words);
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.err, "tavimor-cli: standard output: Run-time error '61': Disk full\n");
  }
}

TEST_F(Errors, AListingThatCannotBePrintedSavesNothing) {
  EXPECT_EQ(runOnFullDevice({"fit", examplePath("ozone"), "-o", folder / "saved"}).exitCode, 1);
  EXPECT_TRUE(test::namesIn(folder.path()).empty());
}

TEST_F(Errors, ACopyNeedsNoStandardOutput) {
  EXPECT_EQ(runOnFullDevice({"copy", examplePath("ozone"), folder / "copy"}).exitCode, 0);
}

TEST_F(Errors, StandardInputThatCannotBeRead) {
  const test::Descriptor folderAsFile(open(folder.path().c_str(), O_RDONLY | O_CLOEXEC));
  test::Pipe err;
  test::Process process(folderAsFile.number(), STDOUT_FILENO, err.writing.number(), [&] {
    return test::execute(TAVIMOR_CLI, {"eval", examplePath("ozone")});
  });
  err.writing.close();
  EXPECT_EQ(process.wait(), 1);
  EXPECT_EQ(test::readAll(err.reading), "tavimor-cli: standard input: Run-time error '75': Path/File access error\n");
}

#endif

}  // namespace
}  // namespace tavimor
