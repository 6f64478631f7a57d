#include "report/report_lines.h"

#include <gtest/gtest.h>

#include "runtime/run_time_error.h"
#include "support/problem.h"

namespace tavimor {
namespace {

using test::linesOf;
using test::problem;
using test::tabulate;
using Lines = std::vector<std::string>;

std::vector<std::string> dataOf(Dimension& model) {
  return linesOf([&](const LineSink& print) { dataLines(model, print); });
}

// "   x=1" padded to column 39, "FUNCTION=2" from column 40 on, and blanks up to the length of the text and 70.
std::string dataLine(const std::string& text, const std::string& function) {
  std::string line = text + std::string(70, ' ');
  return line.replace(39, 9 + function.size(), "FUNCTION=" + function);
}

TEST(ReportLines, TheSpecificationBlockHasItsNumbersAsPrinted) {
  const Dimension model = problem({{"x", test::spaced(0, 1, 11), 3, 0.5}});
  EXPECT_EQ(linesOf([&](const LineSink& print) { variableLines(model, 0, print); }),
            (Lines{"",                                //
                   "           VARIABLE: x",          //
                   "             DEGREE: 3 ",         //
                   "        # OF POINTS: 11 ",        //
                   "           INTERVAL: [ 0 , 1 ]",  //
                   "CENTER OF EXPANSION: .5 "}));
}

TEST(ReportLines, NegativeNumbersTakeTheSignsPlace) {
  const Dimension model = problem({{"speed (m/s)", {-2.5, -1e-7}, 0, -20}});
  EXPECT_EQ(linesOf([&](const LineSink& print) { variableLines(model, 0, print); }),
            (Lines{"",                                      //
                   "           VARIABLE: speed (m/s)",      //
                   "             DEGREE: 0 ",               //
                   "        # OF POINTS: 2 ",               //
                   "           INTERVAL: [-2.5 ,-1E-07 ]",  //
                   "CENTER OF EXPANSION:-20 "}));
}

TEST(ReportLines, OfOneVariableListTheValuesWithoutAHeader) {
  Dimension model = problem({{"x", {0, 0.5, -1}, 0, 0}});
  tabulate(model, [](double x, double, double, double) { return 3 * x; });
  EXPECT_EQ(dataOf(model), (Lines{"", "DATA:", "",              //
                                  dataLine("   x=0", "0"),      //
                                  dataLine("   x=0.5", "1.5"),  //
                                  dataLine("   x=-1", "-3"),    //
                                  "", "", ""}));
}

TEST(ReportLines, ADataLineIsAsLongAsItsTextAndSeventyBlanks) {
  Dimension model = problem({{"x", {0.5}, 0, 0}});
  const std::string line = dataOf(model)[3];
  EXPECT_EQ(line, "   x=0.5" + std::string(31, ' ') + "FUNCTION=0" + std::string(8 + 70 - 49, ' '));
}

TEST(ReportLines, OfTwoVariablesHaveAHeaderPerValueOfTheSecond) {
  Dimension model = problem({{"x", {1, 2}, 0, 0}, {"y", {5, 6.25}, 0, 0}});
  tabulate(model, [](double x, double y, double, double) { return x * y; });
  EXPECT_EQ(dataOf(model), (Lines{"", "DATA:", "",             //
                                  "  y=5",                     //
                                  dataLine("   x=1", "5"),     //
                                  dataLine("   x=2", "10"),    //
                                  "",                          //
                                  "  y=6.25",                  //
                                  dataLine("   x=1", "6.25"),  //
                                  dataLine("   x=2", "12.5"),  //
                                  "", "", ""}));
}

TEST(ReportLines, ASecondVariableWithASingleValueHasNoHeader) {
  Dimension model = problem({{"x", {1, 2}, 0, 0}, {"y", {5}, 0, 0}});
  EXPECT_EQ(dataOf(model), (Lines{"", "DATA:", "", dataLine("   x=1", "0"), dataLine("   x=2", "0"), "", "", ""}));
}

TEST(ReportLines, ThreeVariablesPrintOnlyTheFirstValueOfTheThird) {
  Dimension model = problem({{"x", {1, 2}, 0, 0}, {"y", {3, 4}, 0, 0}, {"z", {5, 6, 7}, 0, 0}});
  tabulate(model, [](double x, double y, double z, double) { return 100 * z + 10 * y + x; });
  EXPECT_EQ(dataOf(model), (Lines{"", "DATA:", "",            //
                                  "  y=3",                    //
                                  dataLine("   x=1", "531"),  //
                                  dataLine("   x=2", "532"),  //
                                  "",                         //
                                  "  y=4",                    //
                                  dataLine("   x=1", "541"),  //
                                  dataLine("   x=2", "542"),  //
                                  "", "", ""}));
}

TEST(ReportLines, OfFourVariablesTheThirdRunsToTheLastIndexOfTheFourth) {
  Dimension model = problem({{"x", {1}, 0, 0}, {"y", {2}, 0, 0}, {"z", {3, 4, 9}, 0, 0}, {"w", {5, 6}, 0, 0}});
  tabulate(model, [](double x, double y, double z, double w) { return 1000 * w + 100 * z + 10 * y + x; });
  EXPECT_EQ(dataOf(model), (Lines{"",     "DATA:",
                                  "",     //
                                  "w=5",  //
                                  " z=3", dataLine("   x=1", "5321"),
                                  "",     "",  //
                                  " z=4", dataLine("   x=1", "5421"),
                                  "",     "",
                                  "",     //
                                  "w=6",  //
                                  " z=3", dataLine("   x=1", "6321"),
                                  "",     "",  //
                                  " z=4", dataLine("   x=1", "6421"),
                                  "",     "",
                                  ""}));
}

TEST(ReportLines, AFourthVariableWithASingleValueShowsNoHeaderOfTheThird) {
  Dimension model = problem({{"x", {1}, 0, 0}, {"y", {2}, 0, 0}, {"z", {3, 4}, 0, 0}, {"w", {5}, 0, 0}});
  EXPECT_EQ(dataOf(model), (Lines{"", "DATA:", "", dataLine("   x=1", "0"), "", "", ""}));
}

TEST(ReportLines, MoreValuesOfTheFourthThanOfTheThirdLeaveTheList) {
  Dimension model = problem({{"x", {1}, 0, 0}, {"y", {2}, 0, 0}, {"z", {3, 4}, 0, 0}, {"w", {5, 6, 7}, 0, 0}});
  std::vector<std::string> lines;
  try {
    dataLines(model, [&](const std::string& line) { lines.push_back(line); });
    FAIL() << "the third variable has no third value";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number(), ErrorNumber::SubscriptOutOfRange);
  }
  EXPECT_EQ(lines, (Lines{"", "DATA:", "",                          //
                          "w=5",                                    //
                          " z=3", dataLine("   x=1", "0"), "", "",  //
                          " z=4", dataLine("   x=1", "0"), "", ""}));
}

TEST(ReportLines, TheFunctionOverlaysALongNameFromColumn40) {
  Dimension model = problem({{std::string(40, 'n'), {1}, 0, 0}});
  const std::string line = dataOf(model)[3];
  EXPECT_EQ(line, "   " + std::string(36, 'n') + "FUNCTION=0" + std::string(45 + 70 - 49, ' '));
}

TEST(ReportLines, TheFunctionReplacesWhatALongNameLeavesOfTheValue) {
  Dimension model = problem({{std::string(31, 'n'), {12.25}, 0, 0}});
  const std::string line = dataOf(model)[3];
  EXPECT_EQ(line, "   " + std::string(31, 'n') + "=12.2FUNCTION=0" + std::string(40 + 70 - 49, ' '));
}

TEST(ReportLines, ColumnsCountCharactersNotBytes) {
  Dimension model = problem({{"größe", {1}, 0, 0}});
  const std::string line = dataOf(model)[3];
  EXPECT_EQ(line, "   größe=1" + std::string(39 - 10, ' ') + "FUNCTION=0" + std::string(10 + 70 - 49, ' '));
}

TEST(ReportLines, WithoutAFitHaveNoResults) {
  Dimension model = problem({{"x", {1, 2}, 0, 0}, {"y", {3, 4}, 0, 0}});
  std::vector<std::string> expected;
  for (const Long k : {0, 1}) variableLines(model, k, [&](const std::string& line) { expected.push_back(line); });
  dataLines(model, [&](const std::string& line) { expected.push_back(line); });
  EXPECT_EQ(linesOf([&](const LineSink& print) { reportLines(model, model, print); }), expected);
}

TEST(ReportLines, WithAFitHaveTheResultsBetweenSpecificationsAndData) {
  Dimension model = problem({{"x", {-1, 0, 1}, 1, 0}});
  tabulate(model, [](double x, double, double, double) { return 3 + 2 * x; });
  test::compute(model);
  const auto lines = linesOf([&](const LineSink& print) { reportLines(model, model, print); });
  EXPECT_EQ(lines, (Lines{"",                                         //
                          "           VARIABLE: x",                   //
                          "             DEGREE: 1 ",                  //
                          "        # OF POINTS: 3 ",                  //
                          "           INTERVAL: [-1 , 1 ]",           //
                          "CENTER OF EXPANSION: 0 ",                  //
                          "              CORRELATION COEFFICIENT=1",  //
                          "STANDARD ERROR OF ESTIMATE (UNBIASED)=0",  //
                          "                    SUM (RESIDUALS)^2=0",  //
                          "           AVERAGE OF FUNCTION(GIVEN)=3",  //
                          "       AVERAGE OF FUNCTION(ESTIMATED)=3",  //
                          "",
                          "COEFFICIENTS:",
                          "",                                                              //
                          "3" + std::string(255, ' '),                                     //
                          "2" + std::string(23, ' ') + "*x" + std::string(256 - 26, ' '),  //
                          "",
                          "",
                          "",  //
                          "",
                          "DATA:",
                          "",                        //
                          dataLine("   x=-1", "1"),  //
                          dataLine("   x=0", "3"),   //
                          dataLine("   x=1", "5"),   //
                          "",
                          "",
                          ""}));
}

}  // namespace
}  // namespace tavimor
