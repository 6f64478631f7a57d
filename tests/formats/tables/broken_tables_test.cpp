// Tables that are refused, each with the message that a user must get.
#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "table_import.h"

namespace tavimor::test {

namespace {

struct BrokenTable {
  const char* name;
  std::string text;
  ImportOptions options;
  std::vector<std::string> messages;
};

ImportOptions withColumns(const std::vector<std::string>& columns) {
  ImportOptions options;
  options.columns = columns;
  return options;
}

ImportOptions withDegrees(const std::vector<Long>& degrees) {
  ImportOptions options;
  options.degrees = degrees;
  return options;
}

ImportOptions withCentres(const std::vector<std::string>& centres) {
  ImportOptions options;
  options.centres = centres;
  return options;
}

ImportOptions shrinking() {
  ImportOptions options;
  options.gaps = Gaps::Shrink;
  return options;
}

const std::vector<BrokenTable>& brokenTables() {
  static const std::vector<BrokenTable> tables = {
      {"Empty", "", {}, {"no table: a table has two columns of numbers at least, one of them the function"}},
      {"CommentsAlone",
       "# nothing\n\n% here\n",
       {},
       {"no table: a table has two columns of numbers at least, one of them the function"}},
      {"Prose",
       "This is a letter, and no table.\nYours\n",
       {},
       {"no table: a table has two columns of numbers at least, one of them the function"}},
      {"OneColumn",
       "1\n2\n3\n",
       {},
       {"no table: a table has two columns of numbers at least, one of them the function"}},
      {"OneLine", "x,f\n1,2\n", {}, {"no table: it has fewer than two lines of numbers"}},
      {"Utf16",
       std::string("\xFF\xFE"
                   "1\0,\0002\0\n\0",
                   10),
       {},
       {"the table is no UTF-8 or Latin-1 text: save it as UTF-8"}},
      {"TwoReadings",
       "1 ,2\n3 ,4\n",
       {},
       {"the table can be read in two ways: (1) a comma separates the columns, a point is the decimal mark, so that "
        "line "
        "1 is 1 and 2 or (2) blanks separate the columns, a comma is the decimal mark, so that line 1 is 1 and ,2; "
        "please say which with the separator and the decimal mark"}},
      {"Thousands",
       "1,234\t5\n2,345\t6\n",
       {},
       {"the table can be read in two ways: (1) a tab separates the columns, a comma is the decimal mark, so that "
        "1,234 "
        "is less than 2 or (2) a tab separates the columns, a point is the decimal mark, so that 1,234 is 1234; please "
        "say which with the separator and the decimal mark"}},
      {"CommasForTwoThings",
       "x,f\n0,5,1,5\n1,5,2,5\n",
       {},
       {"commas seem to separate the columns and to be decimal marks, too: no number can be told from its neighbour"}},
      {"CommasForTwoThingsWithoutAHeading",
       "0,5,1,5\n1,5,2,5\n2,25,3,5\n",
       {},
       {"commas seem to separate the columns and to be decimal marks, too: no number can be told from its neighbour"}},
      {"ListOrCrossTable",
       "0,1,2\n1,10,20\n2,30,40\n",
       {},
       {"the table can be read in two ways: (1) a list of points, each line a point or (2) a cross table, its first "
        "row "
        "and its first column the values of two variables; please say whether it is a list or a cross table"}},
      {"WhichVariables",
       "x,y,f\n3,7,1\n1,5,2\n2,9,3\n5,8,4\n4,6,5\n",
       {},
       {"the table can be read in two ways: (1) column 3 (\"f\") is a function of column 1 (\"x\") or (2) column 3 "
        "(\"f\") is a function of column 1 (\"x\") and column 2 (\"y\"); please name the columns of the variables and "
        "of "
        "the function"}},
      {"RaggedLine",
       "x,f\n1,2\n2,3,4\n3\n4,5\n",
       {},
       {"line 3 has 3 columns, most lines have 2", "line 4 has 1 column, most lines have 2"}},
      {"TitleLine",
       "Pump 3, measured in May, by hand\nx,f\n1,2\n2,3\n3,4\n",
       {},
       {"line 1 has 3 columns, most lines have 2"}},
      {"Word", "x,y,f\n0,0,1\n0,1,n/a\n1,0,3\n1,1,4\n", {}, {"line 3, column 3 (\"f\"): \"n/a\" is no number"}},
      {"TwoDecimalMarks",
       "0;1,5\n1;2,5\n2;3.5\n",
       {},
       {"line 3, column 2: \"3.5\" is no number: the decimal mark of the table is a comma"}},
      {"EmptyCellOfAVariable",
       "x,y,f\n0,0,1\n,1,2\n1,0,3\n1,1,4\n",
       {},
       {"line 3, column 1 (\"x\"): nothing stands there"}},
      {"NumberBeyondAllDoubles", "0,1\n1,1E999\n2,3\n", {}, {"line 2, column 2: \"1E999\" is no number"}},
      {"QuoteThatIsNotClosed", "x,f\n1,2\n\"2,3\n4,5\n6,7\n", {}, {"line 3 has 1 column, most lines have 2"}},
      {"UnknownColumn",
       "x,y,f\n0,0,1\n0,1,2\n1,0,3\n1,1,4\n",
       withColumns({"x", "z", "f"}),
       {"no column is called \"z\": the columns are 1 (\"x\"), 2 (\"y\") and 3 (\"f\")"}},
      {"ColumnNamedTwice",
       "x,y,f\n0,0,1\n0,1,2\n1,0,3\n1,1,4\n",
       withColumns({"x", "1", "f"}),
       {"column 1 (\"x\") is named twice"}},
      {"OneColumnNamed",
       "x,y,f\n0,0,1\n0,1,2\n1,0,3\n1,1,4\n",
       withColumns({"f"}),
       {"a variable and the function are needed: name two columns at least"}},
      {"ColumnOfWords",
       "x,y,f\n0,a,1\n0,b,2\n1,a,3\n1,b,4\n",
       withColumns({"x", "y", "f"}),
       {"column 2 (\"y\") holds no numbers"}},
      {"TooManyVariables",
       "a,b,c,d,e,f\n3,1,4,1,5,9\n2,6,5,3,5,8\n9,7,9,3,2,3\n1,2,3,8,7,4\n2,8,1,7,9,6\n4,3,2,5,1,7\n",
       {},
       {"5 columns can be variables, more than four: please name those of the variables and of the function"}},
      {"ConstantColumn", "x,f\n3,1\n3,2\n", {}, {"column 1 (\"x\") is always 3: a variable needs two values at least"}},
      {"ConstantColumnTold",
       "x,y,f\n3,0,1\n3,1,2\n",
       withColumns({"x", "y", "f"}),
       {"column 1 (\"x\") is always 3: a variable needs two values at least"}},
      {"ColumnThatFollows",
       "C,F,f\n0,32,1\n10,50,2\n20,68,3\n30,86,4\n10,50,2.5\n",
       withColumns({"C", "F", "f"}),
       {"1 point stands on more than one line: C=10, F=50 on lines 3 and 6 (2 / 2.5)",
        "column 2 (\"F\") follows from column 1 (\"C\"): where that is the same, so is this, and they cannot both be "
        "variables"}},
      {"ColumnThatFollowsFromTwo",
       "x,y,s,f\n0,0,0,1\n0,1,1,2\n0,2,2,3\n1,0,1,4\n1,1,2,5\n1,2,3,6\n",
       withColumns({"x", "y", "s", "f"}),
       {"column 3 (\"s\") follows from the other variables: no two points differ in it alone"}},
      {"DoublePoint",
       "x,y,f\n0,0,1\n0,1,2\n1,0,3\n1,1,4\n1,0,3.5\n0,0,1\n",
       {},
       {"2 points stand on more than one line: x=0, y=0 on lines 2 and 7 (always 1); x=1, y=0 on lines 4 and 6 (3 / "
        "3.5)"}},
      {"MissingPoint",
       "x,y,f\n0,0,1\n0,1,2\n0,2,3\n1,0,4\n1,2,6\n2,0,7\n2,1,8\n2,2,9\n3,0,1\n3,1,2\n3,2,3\n",
       {},
       {"the grid is not full: 1 of its 12 points is missing: x=1, y=1; without x=1 it is full and loses 2 of the 11 "
        "points"}},
      {"EmptyCellOfTheFunction",
       "x,y,f\n0,0,1\n0,1,\n1,0,3\n1,1,4\n2,0,5\n2,1,6\n",
       {},
       {"the grid is not full: 1 of its 6 points is missing: x=0, y=1; without x=0 it is full and loses 1 of the 5 "
        "points"}},
      {"GapInACrossTable",
       ",10,20,30\n0,1,2,3\n1,4,,6\n2,7,8,9\n",
       {},
       {"the grid is not full: 1 of its 9 points is missing: x=1, y=20; without x=1 it is full and loses 2 of the 8 "
        "points"}},
      {"WordInACrossTable", ",10,20,30\n0,1,2,3\n1,4,x,6\n2,7,8,9\n", {}, {"line 3, column 3: \"x\" is no number"}},
      {"CrossTableOfOneRow", "  1 2\n3 3 5\n", {}, {"column 1 is always 3: a variable needs two values at least"}},
      {"NoGridStays",
       "x,y,f\n0,0,1\n0,1,2\n1,0,3\n",
       shrinking(),
       {"no full grid stays: leaving out values leaves no grid of two values for each variable"}},
      {"ScatteredPoints",
       "x,y,f\n1,5,1\n1,9,2\n2,8,3\n3,2,4\n4,12,1\n5,1,5\n6,6,1\n7,4,2\n8,13,3\n9,0,4\n10,7,5\n11,3,6\n12,11,7\n13,15,"
       "8\n"
       "14,16,1\n15,18,1\n16,17,1\n17,19,1\n",
       {},
       {"the points are no grid: of the 17 x 18 points that their values make only 18 are there"}},
      {"TooManyDegrees", "0,1\n1,2\n2,4\n", withDegrees({1, 1}), {"2 degrees are given for 1 variable"}},
      {"DegreeTooHigh",
       "0,1\n1,2\n2,4\n",
       withDegrees({3}),
       {"the degree of x must be 0 or more and below its 3 values, not 3"}},
      {"TooManyCentres", "0,1\n1,2\n2,4\n", withCentres({"0", "0"}), {"2 centres are given for 1 variable"}},
      {"CentreIsNoNumber",
       "0,1\n1,2\n2,4\n",
       withCentres({"middle"}),
       {"the centre \"middle\" is no number and not *"}},
      {"LimitsWithoutAMiddle",
       "1E308,1\n1.7E308,2\n1.75E308,3\n",
       {},
       {"the limits of x have no middle to expand about"}},
  };
  return tables;
}

class Broken : public testing::TestWithParam<BrokenTable> {};

}  // namespace

TEST_P(Broken, IsRefusedWithItsMessage) {
  const ImportOutcome outcome = importTable(GetParam().text, GetParam().options);
  EXPECT_THAT(refusals(outcome), testing::ElementsAreArray(GetParam().messages));
  EXPECT_FALSE(outcome.problem);
}

INSTANTIATE_TEST_SUITE_P(Tables, Broken, testing::ValuesIn(brokenTables()),
                         [](const auto& test) { return std::string(test.param.name); });

TEST(BrokenTables, FindingsKnowTheirLine) {
  const ImportOutcome outcome = importTable("x,f\n1,2\n2,abc\n3,4\n", {});
  const auto found = std::find_if(outcome.findings.begin(), outcome.findings.end(),
                                  [](const TableFinding& finding) { return finding.isRefusal(); });
  ASSERT_NE(found, outcome.findings.end());
  EXPECT_EQ(found->line, 3);
}

}  // namespace tavimor::test
