// tavimor --picture as a process, without a display.
#include <gmock/gmock.h>

#include <filesystem>

#include "support/files.h"
#include "support/process.h"
#include "support/temporary_folder.h"

namespace tavimor::test {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

const std::string kExample = TAVIMOR_SOURCE_DIR "/examples/heat-index";

class PictureCommand : public FolderTest {
 protected:
  Outcome run(std::vector<std::string> arguments) { return runToEnd(TAVIMOR, arguments); }
};

TEST_F(PictureCommand, WritesEachPictureInEachForm) {
  const std::pair<const char*, const char*> forms[] = {{"png", "\x89PNG"}, {"svg", "<?xml"}, {"pdf", "%PDF"}};
  for (const char* kind : {"section", "map", "residuals", "degrees"})
    for (const auto& [ending, beginning] : forms) {
      const std::string file = folder / (std::string(kind) + "." + ending);
      const Outcome outcome = run({"--picture", kind, "-o", file, TAVIMOR_SOURCE_DIR "/examples/silicon-index"});
      EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
      EXPECT_EQ(outcome.err, "");
      EXPECT_THAT(readBytes(file), StartsWith(beginning));
    }
}

TEST_F(PictureCommand, TakesTheVariableAndTheHeldValuesFromTheCommandLine) {
  const std::string file = folder / "section.svg";
  ASSERT_EQ(run({"--picture", "section", "-o", file, "--x", "R", "--at", "T=85", kExample}).exitCode, 0);
  EXPECT_THAT(readBytes(file), HasSubstr("Section along R at T = 85"));
}

TEST_F(PictureCommand, WrongRequestsAreOneLineAndStatusTwo) {
  const std::string file = folder / "picture.png";
  const std::pair<std::vector<std::string>, std::string> wrong[] = {
      {{"--picture", "tree", "-o", file, kExample}, "is none of section, map, residuals, degrees"},
      {{"--picture", "map", "-o", folder / "picture.gif", kExample}, "does not end in .png, .svg or .pdf"},
      {{"--picture", "map", kExample}, "--output is required"},
      {{"--picture", "map", "-o", file}, "PROBLEM is required"},
      {{"--picture", "map", "-o", file, "--x", "q", kExample}, "--x: there is no variable \"q\""},
      {{"--picture", "map", "-o", file, "--at", "T", kExample}, "--at: \"T\" is not NAME=NUMBER"},
      {{"--picture", "map", "-o", file, "--at", "q=1", kExample}, "--at: there is no variable \"q\""}};
  for (const auto& [arguments, complaint] : wrong) {
    const Outcome outcome = run(arguments);
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_THAT(outcome.err, StartsWith("tavimor: "));
    EXPECT_THAT(outcome.err, HasSubstr(complaint + "; see tavimor --help\n"));
    EXPECT_FALSE(std::filesystem::exists(file));
  }
}

TEST_F(PictureCommand, FailuresAreOneLineAndStatusOne) {
  const Outcome none = run({"--picture", "map", "-o", folder / "picture.png", folder / "none"});
  EXPECT_EQ(none.exitCode, 1);
  EXPECT_EQ(none.err, "tavimor: " + folder / "none" + ": Run-time error '53': File not found\n");
  const Outcome unwritable = run({"--picture", "map", "-o", folder / "none/picture.png", kExample});
  EXPECT_EQ(unwritable.exitCode, 1);
  EXPECT_THAT(unwritable.err, HasSubstr("Path not found"));
}

TEST_F(PictureCommand, AMapOfOneVariableSaysWhatItTakes) {
  const Outcome outcome =
      run({"--picture", "map", "-o", folder / "picture.png", TAVIMOR_SOURCE_DIR "/examples/load-cell"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_THAT(outcome.err, HasSubstr("A map takes two variables."));
}

}  // namespace
}  // namespace tavimor::test
