#include "formats/tables/import_table.h"

#include <gmock/gmock.h>

#include <array>

#include "table_import.h"

namespace tavimor::test {

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

Problem imported(std::string_view text, const ImportOptions& options = {}) {
  const ImportOutcome outcome = importTable(text, options);
  for (const std::string& refusal : refusals(outcome)) ADD_FAILURE() << refusal;
  return outcome.problem.value_or(Problem());
}

// The problem that most of these tables hold: f = 1 + 2x + 10y at x = 0, 0.5, 1 and y = 10, 30.
void expectThePlane(const Problem& problem) {
  ASSERT_EQ(problem.LastVar, 1);
  EXPECT_THAT(problem.X0, ElementsAre(0, 0.5, 1));
  EXPECT_THAT(problem.X1, ElementsAre(10, 30));
  for (Long i = 0; i <= 2; ++i)
    for (Long j = 0; j <= 1; ++j)
      EXPECT_EQ(problem.F(i, j, 0, 0), 1 + 2 * problem.X0[i] + 10 * problem.X1[j]) << i << ' ' << j;
}

struct UnderstoodTable {
  const char* name;
  const char* text;
};

constexpr UnderstoodTable kPlanes[] = {
    {"Commas", "x,y,f\n0,10,101\n0,30,301\n0.5,10,102\n0.5,30,302\n1,10,103\n1,30,303\n"},
    {"CommasAndBlanks", "0, 10, 101\n0, 30, 301\n0.5, 10, 102\n0.5, 30, 302\n1, 10, 103\n1, 30, 303\n"},
    {"Semicolons", "0;10;101\n0;30;301\n0.5;10;102\n0.5;30;302\n1;10;103\n1;30;303\n"},
    {"SemicolonsAndDecimalCommas", "0;10;101\n0;30;301\n0,5;10;102\n0,5;30;302\n1,0;10;103\n1;30;303\n"},
    {"Tabs", "x\ty\tf\n0\t10\t101\n0\t30\t301\n.5\t10\t102\n.5\t30\t302\n1\t10\t103\n1\t30\t303"},
    {"TabsAndDecimalCommas", "x\ty\tf\n0\t10\t101\n0\t30\t301\n0,5\t10\t102\n0,5\t30\t302\n1\t10\t103\n1\t30\t303"},
    {"Blanks", "  0  10 101\n  0  30 301\n 0.5 10 102\n 0.5\t30 302\n  1  10 103 \n  1  30 303\n"},
    {"BlanksAndDecimalCommas", "0 10 101\n0 30 301\n0,5 10 102\n0,5 30 302\n1 10 103\n1 30 303\n"},
    {"CrLf", "x,y,f\r\n0,10,101\r\n0,30,301\r\n0.5,10,102\r\n0.5,30,302\r\n1,10,103\r\n1,30,303\r\n"},
    {"ByteOrderMark",
     "\xEF\xBB\xBF"
     "0,10,101\n0,30,301\n0.5,10,102\n0.5,30,302\n1,10,103\n1,30,303\n"},
    {"Units", "x,y,f\nm,K,\n0,10,101\n0,30,301\n0.5,10,102\n0.5,30,302\n1,10,103\n1,30,303\n"},
    {"Comments", "# a title\n0,10,101\n0,30,301\n\n// half\n0.5,10,102\n0.5,30,302\n% one\n1,10,103\n1,30,303\n"},
    {"AnyOrder", "1,30,303\n0,10,101\n0.5,30,302\n1,10,103\n0,30,301\n0.5,10,102\n"},
    {"QuotedCells", "\"x\",\"y\",\"f\"\n\"0\",10,101\n0,30,301\n0.5,10,\"102\"\n0.5,30,302\n1,10,103\n1,30,303\n"},
    {"QuotedDecimalCommas",
     "\"0\",\"10\",\"101\"\n\"0\",\"30\",\"301\"\n\"0,5\",\"10\",\"102\"\n\"0,5\",\"30\",\"302\"\n\"1\",\"10\","
     "\"103\"\n"
     "\"1\",\"30\",\"303\"\n"},
    {"AColumnOfWords", "x,y,note,f\n0,10,a,101\n0,30,b,301\n0.5,10,c,102\n0.5,30,d,302\n1,10,e,103\n1,30,,303\n"},
    {"AConstantColumn", "x,z,y,f\n0,7,10,101\n0,7,30,301\n0.5,7,10,102\n0.5,7,30,302\n1,7,10,103\n1,7,30,303\n"},
    {"AColumnThatFollows",
     "x,y,cm,f\n0,10,0,101\n0,30,0,301\n0.5,10,50,102\n0.5,30,50,302\n1,10,100,103\n1,30,100,303\n"},
    {"ANumberForEachLine", "n,x,y,f\n1,0,10,101\n2,0,30,301\n3,0.5,10,102\n4,0.5,30,302\n5,1,10,103\n6,1,30,303\n"},
    {"CrossTable", ",10,30\n0,101,301\n0.5,102,302\n1,103,303\n"},
    {"CrossTableWithACorner", "x\\y;10;30\n0;101;301\n0,5;102;302\n1;103;303\n"},
    {"CrossTableOfBlanks", "      10  30\n0    101 301\n0.5  102 302\n1    103 303\n"},
};

class Understood : public testing::TestWithParam<UnderstoodTable> {};

}  // namespace

TEST_P(Understood, WithoutBeingTold) { expectThePlane(imported(GetParam().text)); }

INSTANTIATE_TEST_SUITE_P(Tables, Understood, testing::ValuesIn(kPlanes),
                         [](const auto& test) { return std::string(test.param.name); });

TEST(ImportTable, NamesColumnsLimitsAndDefaults) {
  const Problem problem = imported("p,T,f\n0,1.5,3\n0,2,4\n1,1.5,5\n1,2,6\n");
  EXPECT_EQ(problem.VarName[0], "p");
  EXPECT_EQ(problem.VarName[1], "T");
  EXPECT_EQ(problem.LowerLimit[1], 1.5);
  EXPECT_EQ(problem.UpperLimit[1], 2);
  EXPECT_EQ(problem.Centre[1], 1.75);
  EXPECT_EQ(problem.Degree[0], 1);
  EXPECT_EQ(problem.NumGridPoints, 4);
  EXPECT_TRUE(problem.PeriodFlag[0]);
  EXPECT_TRUE(problem.ValuesGiven[1]);
}

TEST(ImportTable, OnlyExactStepsAreEquallySpaced) {
  const Problem problem = imported("0,1\n0.25,2\n0.5,3\n");
  EXPECT_TRUE(problem.EquallySpaced[0]);
  EXPECT_EQ(problem.Step[0], 0.25);
  EXPECT_FALSE(imported("0,1\n0.1,2\n0.2,3\n0.3,4\n").EquallySpaced[0]) << "0.1 + 0.1 + 0.1 is not 0.3";
  EXPECT_FALSE(imported("0,1\n1,2\n3,3\n").EquallySpaced[0]);
}

TEST(ImportTable, FourVariablesGoWithTheirIndices) {
  std::string text = "a,b,c,d,f\n";
  for (int n = 15; n >= 0; --n) {
    for (const int bit : {8, 4, 2, 1}) text += (n & bit) != 0 ? "1," : "0,";
    text += std::to_string(n) + "\n";
  }
  const Problem problem = imported(text);
  EXPECT_EQ(problem.F(1, 0, 0, 0), 8);
  EXPECT_EQ(problem.F(0, 1, 1, 0), 6);
  EXPECT_EQ(problem.F(1, 1, 0, 1), 13);
}

TEST(ImportTable, Latin1NamesBecomeUtf8) {
  EXPECT_EQ(imported("Gr\xF6\xDF"
                     "e,f\n1,2\n2,3\n")
                .VarName[0],
            "Gr\xC3\xB6\xC3\x9F"
            "e");
}

TEST(ImportTable, NamesAreCutAtCommasAndMadeUnique) {
  const ImportOutcome outcome = importTable(
      "\"p, bar\",p,,f\n0,0,0,1\n0,0,1,2\n0,1,0,3\n0,1,1,4\n1,0,0,5\n1,0,1,6\n"
      "1,1,0,7\n1,1,1,8\n",
      {});
  EXPECT_THAT(refusals(outcome), IsEmpty());
  ASSERT_TRUE(outcome.problem);
  EXPECT_THAT(outcome.problem->VarName, ElementsAre("p", "p2", "z", ""));
  EXPECT_THAT(notes(outcome, FindingKind::NameChanged),
              ElementsAre("column 1 (\"p, bar\") becomes the variable p", "column 2 (\"p\") becomes the variable p2",
                          "column 3 becomes the variable z"));
}

TEST(ImportTable, TheCornerNamesTheVariablesOfACrossTable) {
  const Problem problem = imported("p \\ T,10,30\n0,1,2\n1,3,4\n");
  EXPECT_EQ(problem.VarName[0], "p");
  EXPECT_EQ(problem.VarName[1], "T");
}

TEST(ImportTable, SaysWhatWasTaken) {
  const ImportOutcome outcome = importTable("p;T;note;f\nbar;K;;m\n0;1,5;a;3\n0;2;b;4\n1;1,5;c;5\n1;2;d;6\n", {});
  std::vector<std::string> texts;
  for (const TableFinding& finding : outcome.findings) texts.push_back(finding.text);
  EXPECT_THAT(texts,
              ElementsAre("a list of points: a semicolon separates the columns, a comma is the decimal mark",
                          "line 1 is the heading, line 2 the units (bar, K, , m)",
                          "column 1 (\"p\") and column 2 (\"T\") are the variables, column 4 (\"f\") the function",
                          "column 3 (\"note\") is left out: it holds no numbers",
                          "p: 2 values from 0 to 1, equally spaced", "T: 2 values from 1.5 to 2, equally spaced"));
}

TEST(ImportTable, TakesTheColumnsThatAreTold) {
  ImportOptions options;
  options.columns = {"b", "1", "g"};
  const Problem problem = imported("a,b,f,g\n1,10,0,5\n1,20,0,6\n2,10,0,7\n2,20,0,8\n", options);
  EXPECT_EQ(problem.VarName[0], "b");
  EXPECT_EQ(problem.VarName[1], "a");
  EXPECT_EQ(problem.F(1, 0, 0, 0), 6);
}

TEST(ImportTable, ColumnsThatAreToldNeedNoNumbersElsewhere) {
  ImportOptions options;
  options.columns = {"x", "f"};
  EXPECT_EQ(imported("x,f,remark\n1,10,5\n2,20,?\n", options).F(1, 0, 0, 0), 20);
}

TEST(ImportTable, TakesDegreesAndCentres) {
  ImportOptions options;
  options.degrees = {2, 0};
  options.centres = {"0", "*"};
  const Problem problem = imported(kPlanes[0].text, options);
  EXPECT_EQ(problem.Degree[0], 2);
  EXPECT_EQ(problem.Degree[1], 0);
  EXPECT_EQ(problem.Centre[0], 0);
  EXPECT_EQ(problem.Centre[1], 20);
}

TEST(ImportTable, LimitsWithoutAMiddleHaveAGivenCentre) {
  ImportOptions options;
  options.centres = {"1E308"};
  EXPECT_EQ(imported("1E308,1\n1.7E308,2\n1.75E308,3\n", options).Centre[0], 1e308);
}

TEST(ImportTable, OneDegreeServesAllVariables) {
  ImportOptions options;
  options.degrees = {0};
  EXPECT_EQ(imported(kPlanes[0].text, options).Degree[1], 0);
}

TEST(ImportTable, TheHeadingCanBeTold) {
  ImportOptions options;
  options.heading = Heading::Yes;
  EXPECT_EQ(imported("1,2\n3,4\n5,6\n", options).LastPoint[0], 1) << "the first line is a heading of numbers";
}

TEST(ImportTable, ValuesWithinTheToleranceAreOneAndReported) {
  const ImportOutcome outcome =
      importTable("0,10,1\n0,30,2\n1,10,3\n1.0000000001,30,4\n2,10.000000001,5\n2,30,6\n", {});
  ASSERT_TRUE(outcome.problem);
  EXPECT_THAT(outcome.problem->X0, ElementsAre(0, 1, 2));
  EXPECT_THAT(notes(outcome, FindingKind::ValuesMerged),
              ElementsAre("values of x that are equal within the tolerance are taken for 1: 1, 1.0000000001",
                          "values of y that are equal within the tolerance are taken for 10: 10, 10.000000001"));
}

TEST(ImportTable, MeansOfDoublePointsOnlyWhereTold) {
  ImportOptions options;
  options.duplicates = Duplicates::Mean;
  const ImportOutcome outcome = importTable("x,f\n0,1\n1,2\n1,4\n2,0.1\n2,0.1\n2,0.1\n", options);
  ASSERT_TRUE(outcome.problem);
  EXPECT_EQ(outcome.problem->F(1, 0, 0, 0), 3);
  EXPECT_EQ(outcome.problem->F(2, 0, 0, 0), 0.1);
  EXPECT_THAT(
      notes(outcome, FindingKind::MeansTaken),
      ElementsAre("the mean is taken at 2 points: x=1 on lines 3 and 4 (2 / 4); x=2 on lines 5, 6 and 7 (always "
                  "0.1)"));
}

TEST(ImportTable, AGridWithGapsShrinksOnlyWhereTold) {
  ImportOptions options;
  options.gaps = Gaps::Shrink;
  const ImportOutcome outcome = importTable("x,y,f\n0,1,1\n0,2,2\n1,1,3\n2,1,5\n2,2,6\n3,1,7\n3,2,8\n", options);
  ASSERT_TRUE(outcome.problem);
  EXPECT_THAT(outcome.problem->X0, ElementsAre(0, 2, 3));
  EXPECT_EQ(outcome.problem->F(1, 1, 0, 0), 6);
  EXPECT_THAT(notes(outcome, FindingKind::GridShrunk), ElementsAre("x=1 is left out, and with it 1 of the 7 points"));
}

TEST(ImportTable, AFirstColumnInOrderIsTheOneVariableWhereNothingMakesAGrid) {
  const ImportOutcome outcome = importTable("T,rho,eta\n0,1.3,17.2\n5,1.27,17.5\n10,1.25,17.7\n20,1.2,18.1\n", {});
  ASSERT_TRUE(outcome.problem);
  EXPECT_EQ(outcome.problem->LastVar, 0);
  EXPECT_THAT(notes(outcome, FindingKind::ColumnLeftOut),
              ElementsAre("column 2 (\"rho\") is left out: it follows from column 1 (\"T\")"));
}

TEST(ImportTable, ACrossTableOfNumbersAloneCanBeTold) {
  ImportOptions options;
  options.form = TableForm::Cross;
  const Problem problem = imported("0,10,30\n0,101,301\n0.5,102,302\n1,103,303\n", options);
  expectThePlane(problem);
}

TEST(ImportTable, AWideTableOfNumbersAloneIsACrossTable) {
  const Problem problem = imported("0,1,2,3,4,5,6\n10,11,12,13,14,15,16\n20,21,22,23,24,25,26\n");
  EXPECT_EQ(problem.LastPoint[0], 1);
  EXPECT_EQ(problem.LastPoint[1], 5);
  EXPECT_EQ(problem.F(1, 5, 0, 0), 26);
}

TEST(ImportTable, TellsItsProgress) {
  std::string text;
  for (int n = 0; n < 200000; ++n) text += std::to_string(n) + ",1\n";
  std::vector<double> parts;
  ImportOptions options;
  options.progress = [&](double part) { parts.push_back(part); };
  imported(text, options);
  ASSERT_GE(parts.size(), 2U);
  EXPECT_TRUE(std::is_sorted(parts.begin(), parts.end()));
  EXPECT_GT(parts.front(), 0.0);
  EXPECT_LE(parts.back(), 1.0);
}

}  // namespace tavimor::test
