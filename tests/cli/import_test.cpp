#include "cli/cli.h"
#include "support/example.h"

namespace tavimor::test {

using testing::HasSubstr;
using testing::StartsWith;

namespace {

std::string publicTable(const std::string& name) { return examplePath("data/" + name + ".csv"); }

}  // namespace

class ImportCommand : public CommandTest {
 protected:
  Outcome importTable(const std::string& text, std::vector<std::string> options = {}) {
    writeBytes(folder / "t", text);
    options.insert(options.begin(), {"import", folder / "t", folder / "p"});
    return tavimorCli(options);
  }

  void expectPair(const std::string& example) {
    EXPECT_EQ(readBytes(folder / "p"), readBytes(examplePath(example)));
    EXPECT_EQ(readBytes(folder / "p.dat"), readBytes(examplePath(example) + ".dat"));
  }

  void expectNothingWritten() {
    EXPECT_FALSE(std::filesystem::exists(folder / "p"));
    EXPECT_FALSE(std::filesystem::exists(folder / "p.dat"));
  }
};

TEST_F(ImportCommand, MakesThePairThatTheExampleIs) {
  const Outcome outcome =
      tavimorCli({"import", publicTable("mackenzie"), folder / "p", "--degree", "3,1,3", "--centre", "0,35,0"});
  EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(
      outcome.out,
      text({"a list of points: a comma separates the columns, a point is the decimal mark", "line 1 is the heading",
            "column 1 (\"T\"), column 2 (\"S\") and column 3 (\"D\") are the variables, column 4 (\"c\") the function",
            "T: 8 values from 2 to 30, equally spaced", "S: 4 values from 25 to 40, equally spaced",
            "D: 9 values from 0 to 8000, equally spaced"}));
  expectPair("sound-speed");
}

TEST_F(ImportCommand, TakesTheColumnsThatItIsTold) {
  const Outcome outcome = tavimorCli(
      {"import", "--columns", "T,R,HI", publicTable("heat_index"), folder / "p", "--degree", "2", "--centre", "0"});
  EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
  expectPair("heat-index");
}

TEST_F(ImportCommand, ReadsStandardInput) {
  const Outcome outcome = tavimorCli({"import", "-", folder / "p"}, "x;f\n0;1,5\n1;2,5\n");
  EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
  EXPECT_EQ(tavimorCli({"eval", folder / "p", "0.5"}).out, "2\n");
}

TEST_F(ImportCommand, SaysOnStandardErrorWhatIsWrongAndWritesNothing) {
  const Outcome outcome = importTable("x,f\n1,2\n2,abc\n3,?\n4,5\n5,6\n6,7\n");
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.out, "");
  const std::string table = "tavimor-cli: " + (folder / "t") + ": ";
  EXPECT_EQ(outcome.err, table + "line 3, column 2 (\"f\"): \"abc\" is no number\n" + table +
                             "line 4, column 2 (\"f\"): \"?\" is no number\n");
  expectNothingWritten();
}

TEST_F(ImportCommand, NamesStandardInputInItsRefusals) {
  const Outcome outcome = tavimorCli({"import", "-", folder / "p"}, "words\n");
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_THAT(outcome.err, StartsWith("tavimor-cli: standard input: no table: "));
}

TEST_F(ImportCommand, ATableThatIsNotThereIsAnError) {
  const Outcome outcome = tavimorCli({"import", folder / "none", folder / "p"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.err, "tavimor-cli: " + (folder / "none") + ": Run-time error '53': File not found\n");
}

TEST_F(ImportCommand, LeavesTheOldProblemWhereTheTableIsRefused) {
  const std::string pair = line();
  writeBytes(folder / "t", "1\n");
  EXPECT_EQ(tavimorCli({"import", folder / "t", pair}).exitCode, 1);
  EXPECT_EQ(tavimorCli({"eval", pair, "0"}).out, "3\n");
}

TEST_F(ImportCommand, TakesMeansWhereTold) {
  const std::string twice = "x,f\n0,1\n1,2\n1,4\n2,5\n";
  EXPECT_EQ(importTable(twice).exitCode, 1);
  EXPECT_EQ(importTable(twice, {"--duplicates", "mean"}).exitCode, 0);
  EXPECT_EQ(tavimorCli({"eval", folder / "p", "1"}).out, "3\n");
}

TEST_F(ImportCommand, ShrinksTheGridWhereTold) {
  const std::string gap = "x,y,f\n0,0,1\n0,1,2\n1,0,3\n2,0,5\n2,1,6\n";
  EXPECT_THAT(importTable(gap).err, HasSubstr("1 of its 6 points is missing: x=1, y=1; without x=1 it is full"));
  EXPECT_EQ(importTable(gap, {"--gaps", "shrink"}).exitCode, 0);
  EXPECT_EQ(tavimorCli({"eval", folder / "p", "1", "0.5"}).out, "3.5\n");
}

TEST_F(ImportCommand, TakesSeparatorMarkHeadingFormAndTolerance) {
  EXPECT_EQ(importTable("0|1,234\n1|2,345\n", {"--separator", "|", "--decimal-comma"}).exitCode, 0);
  EXPECT_EQ(tavimorCli({"eval", folder / "p", "0"}).out, "1.234\n");
  EXPECT_EQ(importTable("7,8\n0,1\n1,2\n", {"--header", "yes"}).exitCode, 0);
  EXPECT_EQ(tavimorCli({"eval", folder / "p", "0"}).out, "1\n");
  EXPECT_EQ(importTable("0,10,30\n0,1,2\n1,3,4\n", {"--form", "cross"}).exitCode, 0);
  EXPECT_EQ(tavimorCli({"eval", folder / "p", "1", "30"}).out, "4\n");
  EXPECT_EQ(importTable("0,0,1\n0,1,2\n1.01,0,3\n1,1,4\n", {"--tolerance", "0.1"}).exitCode, 0);
  EXPECT_EQ(importTable("0,0,1\n0,1,2\n1.01,0,3\n1,1,4\n").exitCode, 1);
}

TEST_F(ImportCommand, TakesNegativeCentres) {
  EXPECT_EQ(importTable("0,1\n1,2\n", {"--centre=-5"}).exitCode, 0);
  EXPECT_THAT(readBytes(folder / "p"), HasSubstr("\"x\",0,1,-5,"));
}

TEST_F(ImportCommand, BringsBackAProblemThatWasExportedAsJson) {
  ASSERT_EQ(tavimorCli({"fit", examplePath("heat-index"), "-o", folder / "fitted"}).exitCode, 0);
  ASSERT_EQ(tavimorCli({"export", folder / "fitted", "--to", "json", "-o", folder / "j"}).exitCode, 0);
  const Outcome outcome = tavimorCli({"import", folder / "j", folder / "p"});
  EXPECT_EQ(outcome.out, "A problem as JSON, with its fit.\n");
  EXPECT_EQ(readBytes(folder / "p"), readBytes(folder / "fitted"));
  EXPECT_EQ(readBytes(folder / "p.dat"), readBytes(folder / "fitted.dat"));
}

TEST_F(ImportCommand, RefusesJsonThatIsNoProblemAndOptionsOfTables) {
  const Outcome outcome = importTable("\n{\"format\": 1}");
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.err, "tavimor-cli: " + (folder / "t") + ": format: expected a text, found 1\n");
  EXPECT_EQ(importTable("{}", {"--degree", "2"}).exitCode, 2);
  expectNothingWritten();
}

}  // namespace tavimor::test
