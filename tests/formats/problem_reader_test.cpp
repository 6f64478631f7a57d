#include "formats/problem_reader.h"

#include <gtest/gtest.h>

#include "formats/open_problem.h"
#include "support/expect_error.h"
#include "support/pair_files.h"
#include "support/stored_problems.h"

namespace tavimor {
namespace {

class ProblemReader : public test::PairTest {
 protected:
  // A pair of one variable with this record.
  Dimension readRecord(const std::string& record) {
    writePair("0\n" + record + "\n#FALSE#\n", "0\n1\n#TRUE#\n0\n1\n8\n9\n");
    return read();
  }
};

TEST_F(ProblemReader, AStarAsCentreIsTheMiddleOfTheInterval) {
  EXPECT_EQ(readRecord("x,1,4,*,#TRUE#,0,2").Centre[0], 2.5);
  EXPECT_EQ(readRecord("x,1,4,\"*\",#TRUE#,0,2").Centre[0], 2.5);
}

TEST_F(ProblemReader, AStarAsPeriodIsTwicePi) {
  const Dimension model = readRecord("x,1,4,1,#TRUE#,*,2");
  EXPECT_EQ(model.Period[0], model.Pi + model.Pi);
}

TEST_F(ProblemReader, CentreAndPeriodAreTheirLeadingNumbers) {
  const Dimension model = readRecord("x,1,4, 1.5 m ,#TRUE#,\"-.5s\",2");
  EXPECT_EQ(model.Centre[0], 1.5);
  EXPECT_EQ(model.Period[0], -0.5);
}

TEST_F(ProblemReader, CentreAndPeriodThatAreNoNumbersAreZero) {
  const Dimension model = readRecord("x,1,4,middle,#TRUE#,,2");
  EXPECT_EQ(model.Centre[0], 0);
  EXPECT_EQ(model.Period[0], 0);
}

TEST_F(ProblemReader, TheCentresStandAsTextsInTheFields) {
  writePair("1\nx,1,4,*,#TRUE#,0,2\ny,0,1, 1.50 ,#FALSE#,0,3\n#FALSE#\n",
            "1\n1\n#TRUE#\n1\n#FALSE#\n0\n1\n0\n1\n1\n2\n3\n4\n");
  const AllSpecFields fields = openProblem(path()).fields;
  EXPECT_EQ(fields[0].txtExpansion, "*");
  EXPECT_EQ(fields[1].txtExpansion, "1.50");
  EXPECT_EQ(fields[2].txtExpansion, "");
  EXPECT_EQ(fields[0].txtUL, "4");
  EXPECT_EQ(fields[1].txtTerms, "3");
  EXPECT_EQ(fields[0].txtPoints, "2");
  EXPECT_TRUE(fields[0].chkSpaced);
  EXPECT_FALSE(fields[1].chkSpaced);
}

TEST_F(ProblemReader, TakesItemsOnLinesOfTheirOwnOrBesideOthers) {
  writePair("1,\"x\",0,1,.5,#FALSE#,0,1\n\"y\"\n0\n2\n1\n#FALSE#\n0\n1\n#TRUE#,1,2,3,4",
            "1,2,#TRUE#,1,#FALSE#,0,0.5,1,0,2\r\n1,2,3,4,5,6\n6\n.998,.012,.5,2.5,2.5");
  const Dimension model = read();
  EXPECT_EQ(model.VarName, (PerVariable<std::string>{"x", "y"}));
  EXPECT_EQ(model.Centre, (PerVariable<double>{0.5, 1}));
  EXPECT_EQ(model.X0, (std::vector<double>{0, 0.5, 1}));
  EXPECT_EQ(test::valuesLastIndexFastest(model.F), (std::vector<double>{1, 2, 3, 4, 5, 6}));
  EXPECT_EQ(model.Coef(1, 0, 0, 0), 2);
  EXPECT_EQ(model.NumGridPoints, 6);
  EXPECT_EQ(model.CorrCoef, 0.998);
}

TEST_F(ProblemReader, SkipsAByteOrderMarkAndTakesLatin1) {
  writePair(
      "\xEF\xBB\xBF 0 \r\n\"T in \xB0"
      "C\",0,1,*,#FALSE#,0,1\r\n#FALSE#\r\n",
      "\xEF\xBB\xBF 0 \r\n 1 \r\n#TRUE#\r\n 0 \r\n 1 \r\n 8 \r\n 9 \r\n\r\n");
  EXPECT_EQ(read().VarName[0], "T in °C");
}

TEST_F(ProblemReader, WholeNumbersAreRoundedHalvesToEven) {
  EXPECT_EQ(readRecord("x,1,4,*,#TRUE#,0,2.5").Degree[0], 2);
  EXPECT_EQ(readRecord("x,1,4,*,#TRUE#,0,3.5").Degree[0], 4);
}

TEST_F(ProblemReader, MarksTheValuesOfDeclaredVariablesAsGiven) {
  EXPECT_EQ(readRecord("x,1,4,*,#TRUE#,0,2").ValuesGiven, (PerVariable<bool>{true, false, false, false}));
}

// The number of variables stands in both files; the one in the values file holds, and what the other file tells of
// further variables goes.
TEST_F(ProblemReader, TheNumberOfVariablesInTheValuesFileHolds) {
  writePair("1\nx,0,1,0,#TRUE#,0,1\ny,0,1,0,#TRUE#,0,1\n#TRUE#\n1,2,3,4\n", "0\n1\n#TRUE#\n0\n1\n8\n9\n2,0,0,0,0,0\n");
  const Dimension fewer = read();
  EXPECT_EQ(fewer.LastVar, 0);
  EXPECT_EQ(fewer.VarName[1], "");
  EXPECT_EQ(fewer.Degree, (PerVariable<Long>{1, 0, 0, 0}));
  EXPECT_EQ(fewer.Coef.last(), fewer.Degree);
  EXPECT_EQ(fewer.Coef(1, 0, 0, 0), 2);
  writePair("0\nx,0,1,0,#TRUE#,0,1\n#FALSE#\n", "1\n1\n#TRUE#\n0\n#TRUE#\n0\n1\n8\n9\n");
  const Dimension more = read();
  EXPECT_EQ(more.LastVar, 1);
  EXPECT_EQ(more.VarName[1], "");
}

}  // namespace
}  // namespace tavimor
