#include <gtest/gtest.h>

#include "report/report_lines.h"
#include "support/expect_error.h"
#include "support/problem.h"

namespace tavimor {
namespace {

using test::problem;
using test::tabulate;

// The report as a page shows it: without the blanks at the ends of lines, which ReportLines tests.
std::string reportOf(Dimension& model) {
  std::string page;
  for (const std::string& line : test::linesOf([&](const LineSink& print) { reportLines(model, model, print); }))
    page += line.substr(0, line.find_last_not_of(' ') + 1) + '\n';
  return page;
}

TEST(WholeReport, OfOneVariable) {
  Dimension model = problem({{"x", {-2, 0, 1, 2, -1}, 2, 0}});
  tabulate(model, [](double x, double, double, double) { return 0.5 * x * x - x; });
  test::compute(model);
  EXPECT_EQ(reportOf(model), R"(
           VARIABLE: x
             DEGREE: 2
        # OF POINTS: 5
           INTERVAL: [-2 , 2 ]
CENTER OF EXPANSION: 0
              CORRELATION COEFFICIENT=1
STANDARD ERROR OF ESTIMATE (UNBIASED)=0
                    SUM (RESIDUALS)^2=0
           AVERAGE OF FUNCTION(GIVEN)=1
       AVERAGE OF FUNCTION(ESTIMATED)=1

COEFFICIENTS:

0
-1                      *x
0.5                     *x^2




DATA:

   x=-2                                FUNCTION=4
   x=0                                 FUNCTION=0
   x=1                                 FUNCTION=-0.5
   x=2                                 FUNCTION=0
   x=-1                                FUNCTION=1.5



)");
}

TEST(WholeReport, OfTwoVariables) {
  Dimension model = problem({{"x", {-1, 0, 1}, 1, 0}, {"y", {1, 3}, 1, 2}});
  tabulate(model, [](double x, double y, double, double) { return 3 + 2 * x + x * (y - 2); });
  test::compute(model);
  EXPECT_EQ(reportOf(model), R"(
           VARIABLE: x
             DEGREE: 1
        # OF POINTS: 3
           INTERVAL: [-1 , 1 ]
CENTER OF EXPANSION: 0

           VARIABLE: y
             DEGREE: 1
        # OF POINTS: 2
           INTERVAL: [ 1 , 3 ]
CENTER OF EXPANSION: 2
              CORRELATION COEFFICIENT=1
STANDARD ERROR OF ESTIMATE (UNBIASED)=0
                    SUM (RESIDUALS)^2=0
           AVERAGE OF FUNCTION(GIVEN)=3
       AVERAGE OF FUNCTION(ESTIMATED)=3

COEFFICIENTS:

3
2                       *x

0                       *(y-2)
1                       *x*(y-2)




DATA:

  y=1
   x=-1                                FUNCTION=2
   x=0                                 FUNCTION=3
   x=1                                 FUNCTION=4

  y=3
   x=-1                                FUNCTION=0
   x=0                                 FUNCTION=3
   x=1                                 FUNCTION=6



)");
}

TEST(WholeReport, OfThreeVariablesHasTheFirstValueOfTheThirdOnly) {
  Dimension model = problem({{"x", {-1, 1}, 0, 0}, {"y", {2}, 0, 2}, {"z", {-1, 0, 1}, 1, 0}});
  tabulate(model, [](double, double, double z, double) { return 10 - 4 * z; });
  test::compute(model);
  EXPECT_EQ(reportOf(model), R"(
           VARIABLE: x
             DEGREE: 0
        # OF POINTS: 2
           INTERVAL: [-1 , 1 ]
CENTER OF EXPANSION: 0

           VARIABLE: y
             DEGREE: 0
        # OF POINTS: 1
           INTERVAL: [ 2 , 2 ]
CENTER OF EXPANSION: 2

           VARIABLE: z
             DEGREE: 1
        # OF POINTS: 3
           INTERVAL: [-1 , 1 ]
CENTER OF EXPANSION: 0
              CORRELATION COEFFICIENT=1
STANDARD ERROR OF ESTIMATE (UNBIASED)=0
                    SUM (RESIDUALS)^2=0
           AVERAGE OF FUNCTION(GIVEN)=10
       AVERAGE OF FUNCTION(ESTIMATED)=10

COEFFICIENTS:

10


-4                      *z




DATA:

   x=-1                                FUNCTION=14
   x=1                                 FUNCTION=14



)");
}

TEST(WholeReport, OfFourVariables) {
  Dimension model = problem({{"x", {1, 2}, 0, 0}, {"y", {3, 4}, 0, 0}, {"z", {5, 6}, 0, 0}, {"w", {-1, 1}, 1, 0}});
  tabulate(model, [](double, double, double, double w) { return 8 + 2 * w; });
  test::compute(model);
  EXPECT_EQ(reportOf(model), R"(
           VARIABLE: x
             DEGREE: 0
        # OF POINTS: 2
           INTERVAL: [ 1 , 2 ]
CENTER OF EXPANSION: 0

           VARIABLE: y
             DEGREE: 0
        # OF POINTS: 2
           INTERVAL: [ 3 , 4 ]
CENTER OF EXPANSION: 0

           VARIABLE: z
             DEGREE: 0
        # OF POINTS: 2
           INTERVAL: [ 5 , 6 ]
CENTER OF EXPANSION: 0

           VARIABLE: w
             DEGREE: 1
        # OF POINTS: 2
           INTERVAL: [-1 , 1 ]
CENTER OF EXPANSION: 0
              CORRELATION COEFFICIENT=1
STANDARD ERROR OF ESTIMATE (UNBIASED)=0
                    SUM (RESIDUALS)^2=0
           AVERAGE OF FUNCTION(GIVEN)=8
       AVERAGE OF FUNCTION(ESTIMATED)=8

COEFFICIENTS:

8



2                       *w




DATA:

w=-1
 z=5
  y=3
   x=1                                 FUNCTION=6
   x=2                                 FUNCTION=6

  y=4
   x=1                                 FUNCTION=6
   x=2                                 FUNCTION=6


 z=6
  y=3
   x=1                                 FUNCTION=6
   x=2                                 FUNCTION=6

  y=4
   x=1                                 FUNCTION=6
   x=2                                 FUNCTION=6



w=1
 z=5
  y=3
   x=1                                 FUNCTION=10
   x=2                                 FUNCTION=10

  y=4
   x=1                                 FUNCTION=10
   x=2                                 FUNCTION=10


 z=6
  y=3
   x=1                                 FUNCTION=10
   x=2                                 FUNCTION=10

  y=4
   x=1                                 FUNCTION=10
   x=2                                 FUNCTION=10



)");
}

TEST(WholeReport, AfterASingularFitHasNoResults) {
  Dimension model = problem({{"x", {1, 1}, 1, 0}});
  EXPECT_EQ(test::compute(model), std::vector<std::string>{"YIELDS SINGULAR MATRIX."});
  EXPECT_EQ(reportOf(model), R"(
           VARIABLE: x
             DEGREE: 1
        # OF POINTS: 2
           INTERVAL: [ 1 , 1 ]
CENTER OF EXPANSION: 0

DATA:

   x=1                                 FUNCTION=0
   x=1                                 FUNCTION=0



)");
}

TEST(WholeReport, EndsInARunTimeErrorWhereTheFourthVariableHasMoreValuesThanTheThird) {
  Dimension model = problem({{"x", {1}, 0, 0}, {"y", {2}, 0, 0}, {"z", {3}, 0, 0}, {"w", {5, 6}, 0, 0}});
  test::expectError(ErrorNumber::SubscriptOutOfRange, [&] { reportOf(model); });
}

}  // namespace
}  // namespace tavimor
