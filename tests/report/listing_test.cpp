#include "report/listing.h"

#include <gtest/gtest.h>

#include "runtime/number_text.h"
#include "runtime/text.h"
#include "support/problem.h"

namespace tavimor {
namespace {

using test::linesOf;
using test::problem;
using Lines = std::vector<std::string>;

std::string blanks(std::size_t count) { return std::string(count, ' '); }

std::string trimmedEnd(const std::string& line) { return line.substr(0, line.find_last_not_of(' ') + 1); }

Dimension withCoefficients(const std::vector<test::Axis>& axes) {
  Dimension model = problem(axes);
  model.Coef.redim(model.Degree);
  for (std::size_t n = 0; n < model.Coef.size(); ++n) model.Coef.data()[n] = static_cast<double>(n) + 1;
  return model;
}

std::string lineOf(const Dimension& model, Long power) {
  return BuildCoefficientLine(model, model.Coef, {power, 0, 0, 0});
}

TEST(CoefficientLine, HasTheTermInColumn25AndBlanksBehind) {
  Dimension model = withCoefficients({{"x", {0, 1}, 1, 0.5}});
  model.Coef(1, 0, 0, 0) = -0.125;
  EXPECT_EQ(lineOf(model, 1), "-0.125" + blanks(18) + "*(x-0.5)" + blanks(255 + 6 - 32));
}

TEST(CoefficientLine, OfTheConstantIsTheCoefficientAlone) {
  const Dimension model = withCoefficients({{"x", {0, 1}, 1, 0.5}});
  EXPECT_EQ(lineOf(model, 0), "1" + blanks(255));
}

TEST(CoefficientLine, IsTheCoefficientsLengthAnd255WhateverTheTerm) {
  Dimension model = withCoefficients({{std::string(300, 'n'), {0, 1}, 2, 0}});
  const std::string line = lineOf(model, 2);
  EXPECT_EQ(line, "3" + blanks(23) + "*" + std::string(256 - 25, 'n'));  // the power is cut off
}

TEST(CoefficientLine, ALongCentreIsNotShortened) {
  Dimension model = withCoefficients({{"x", {0, 1}, 1, -1.23456789012345e-102}});
  EXPECT_EQ(trimmedEnd(lineOf(model, 1)), "2" + blanks(23) + "*(x+1.23456789012345E-102)");
}

// No number text is that long: 15 digits, sign, point and a three-digit exponent make 22 characters. The rule still
// shows in the longest of them, whose line keeps two blanks before the term.
TEST(CoefficientLine, TheLongestNumberTextsStayClearOfTheTerm) {
  Dimension model = withCoefficients({{"x", {0, 1}, 1, 0}});
  model.Coef(1, 0, 0, 0) = -1.23456789012345e-102;
  EXPECT_EQ(trimmedEnd(lineOf(model, 1)), "-1.23456789012345E-102  *x");
}

TEST(CoefficientLine, ATextOf25CharactersIsOverwrittenFromColumn25) {
  const std::string number = "-1.234567890123456789E-102";
  ASSERT_EQ(number.size(), 26u);
  EXPECT_EQ(overlaid(number + blanks(3), 25, "*x"), "-1.234567890123456789E-1*x   ");
}

TEST(CoefficientLine, ColumnsCountCharactersNotBytes) {
  Dimension model = withCoefficients({{"λ", {0, 1}, 1, 0}});
  EXPECT_EQ(lineOf(model, 1), "2" + blanks(23) + "*λ" + blanks(256 - 26));
}

TEST(StatisticsLines, HaveTheirNumbersInColumn39) {
  Dimension model;
  model.CorrCoef = 0.5;
  model.StdErr = 1e-7;
  model.SumRes2 = 12345;
  model.AvgGiven = -3;
  model.AvgEstimated = 1e15;
  EXPECT_EQ(linesOf([&](const LineSink& add) { statisticsLines(model, add); }),
            (Lines{"              CORRELATION COEFFICIENT=0.5",    //
                   "STANDARD ERROR OF ESTIMATE (UNBIASED)=1E-07",  //
                   "                    SUM (RESIDUALS)^2=12345",  //
                   "           AVERAGE OF FUNCTION(GIVEN)=-3",     //
                   "       AVERAGE OF FUNCTION(ESTIMATED)=1E+15"}));
}

std::vector<std::string> coefficientTexts(Dimension& model) {
  std::vector<std::string> texts;
  for (const std::string& line : linesOf([&](const LineSink& add) { coefficientLines(model, model.Coef, add); })) {
    std::string text = trimmedEnd(line);
    if (const std::size_t gap = text.find("  "); gap != std::string::npos) text.erase(gap, text.rfind(' ') - gap);
    texts.push_back(text);
  }
  return texts;
}

TEST(CoefficientLines, OfOneVariableEndWithThreeEmptyLines) {
  Dimension model = withCoefficients({{"x", {0, 1, 2}, 2, 0}});
  EXPECT_EQ(coefficientTexts(model), (Lines{"1", "2 *x", "3 *x^2", "", "", ""}));
}

TEST(CoefficientLines, HaveTheFirstIndexFastest) {
  Dimension model = withCoefficients({{"x", {0, 1}, 1, 0}, {"y", {0, 1}, 1, 0}});
  EXPECT_EQ(coefficientTexts(model), (Lines{"1", "2 *x", "",           //
                                            "3 *y", "4 *x*y", "", "",  //
                                            ""}));
}

TEST(CoefficientLines, TheEmptyLinesTellHowManyOuterIndicesChanged) {
  Dimension model = withCoefficients({{"a", {0}, 0, 0}, {"b", {0, 1}, 1, 0}, {"c", {0, 1}, 1, 0}, {"d", {0, 1}, 1, 0}});
  EXPECT_EQ(coefficientTexts(model), (Lines{"1",      "", "2 *b",     "", "",      //
                                            "3 *c",   "", "4 *b*c",   "", "", "",  //
                                            "5 *d",   "", "6 *b*d",   "", "",      //
                                            "7 *c*d", "", "8 *b*c*d", "", "", ""}));
}

TEST(ShowResults, OfAConstantListsTheStatisticsAndOneCoefficient) {
  Dimension model = problem({{"x", {1, 2, 3}, 0, 0}});
  test::tabulate(model, [](double, double, double, double) { return 2.5; });
  test::compute(model);
  EXPECT_EQ(linesOf([&](const LineSink& add) { ShowResults(model, model, add); }),
            (Lines{"              CORRELATION COEFFICIENT=1",    //
                   "STANDARD ERROR OF ESTIMATE (UNBIASED)=0",    //
                   "                    SUM (RESIDUALS)^2=0",    //
                   "           AVERAGE OF FUNCTION(GIVEN)=2.5",  //
                   "       AVERAGE OF FUNCTION(ESTIMATED)=2.5",  //
                   "",                                           //
                   "COEFFICIENTS:",                              //
                   "2.5" + blanks(255), "", "", ""}));
}

TEST(ShowResults, WritesWhatIsNoNumberAsWords) {
  Dimension model = withCoefficients({{"x", {0, 1}, 0, 0}});
  model.Coef(0, 0, 0, 0) = -std::numeric_limits<double>::infinity();
  model.CorrCoef = std::numeric_limits<double>::quiet_NaN();
  const auto lines = linesOf([&](const LineSink& add) { ShowResults(model, model, add); });
  EXPECT_EQ(lines[0], "              CORRELATION COEFFICIENT=NAN");
  EXPECT_EQ(trimmedEnd(lines[7]), "-INF");
}

}  // namespace
}  // namespace tavimor
