#include <gtest/gtest.h>

#include <limits>
#include <random>

#include "support/faulty_steps.h"
#include "support/pair_files.h"
#include "support/stored.h"
#include "support/stored_problems.h"

namespace tavimor {
namespace {

using test::expectSameProblem;
using test::gridProblem;
using test::withCrLf;

class ProblemFiles : public test::PairTest {
 protected:
  void expectWritten(const Dimension& model, const std::string& specification, const std::string& values) {
    test::store(model, path());
    expectBytes(withCrLf(specification), withCrLf(values));
    expectSameProblem(read(), model);
  }
};

Dimension exampleProblem() {
  Dimension model = gridProblem({3, 2});
  model.UpperLimit = {1, 2};
  model.Centre = {0.5, 1};
  model.Degree = {2, 1};
  model.EquallySpaced = {true, false};
  model.X0 = {0, 0.5, 1};
  model.X1 = {0, 2};
  return model;
}

TEST_F(ProblemFiles, OfTwoVariablesWithAFit) {
  Dimension model = exampleProblem();
  test::pretendFit(model);
  expectWritten(model,
                " 1 \n"
                "\"x\",0,1,.5,#FALSE#,0,2\n"
                "\"y\",0,2,1,#FALSE#,0,1\n"
                "#TRUE#\n"
                "-3 \n-2.75 \n-2.5 \n-2.25 \n-2 \n-1.75 \n",
                " 1 \n"
                " 2 \n#TRUE#\n"
                " 1 \n#FALSE#\n"
                " 0 \n .5 \n 1 \n"
                " 0 \n 2 \n"
                " 100 \n 100.375 \n 100.125 \n 100.5 \n 100.25 \n 100.625 \n"
                "6,.998,.012,.5,2.5,2.25\n");
}

TEST_F(ProblemFiles, WithoutAFitHoldNeitherCoefficientsNorStatistics) {
  expectWritten(exampleProblem(),
                " 1 \n"
                "\"x\",0,1,.5,#FALSE#,0,2\n"
                "\"y\",0,2,1,#FALSE#,0,1\n"
                "#FALSE#\n",
                " 1 \n"
                " 2 \n#TRUE#\n"
                " 1 \n#FALSE#\n"
                " 0 \n .5 \n 1 \n"
                " 0 \n 2 \n"
                " 100 \n 100.375 \n 100.125 \n 100.5 \n 100.25 \n 100.625 \n");
}

TEST_F(ProblemFiles, OfOneVariableHoldDegreePlusOneCoefficientsAndAValuePerPoint) {
  Dimension model = gridProblem({4});
  model.Degree[0] = 2;
  test::pretendFit(model);
  expectWritten(model,
                " 0 \n"
                "\"x\",0,3,0,#FALSE#,0,2\n"
                "#TRUE#\n"
                "-3 \n-2.75 \n-2.5 \n",
                " 0 \n"
                " 3 \n#TRUE#\n"
                " 0 \n 1 \n 2 \n 3 \n"
                " 100 \n 100.125 \n 100.25 \n 100.375 \n"
                "4,.998,.012,.5,2.5,2.25\n");
}

TEST_F(ProblemFiles, KeepPeriodAndPeriodFlag) {
  Dimension model = gridProblem({2});
  model.PeriodFlag[0] = true;
  model.Period[0] = 0.25;
  expectWritten(model, " 0 \n\"x\",0,1,0,#TRUE#,.25,1\n#FALSE#\n", " 0 \n 1 \n#TRUE#\n 0 \n 1 \n 100 \n 100.125 \n");
}

// Such a value is lost: nothing of it stands in the file.
TEST_F(ProblemFiles, DoNotHoldTheValueOfAVariableThatHasOneOnly) {
  Dimension model = gridProblem({2, 1, 2});
  model.X1 = {7};
  test::store(model, path());
  EXPECT_EQ(test::readBytes(folder / "p.dat"), withCrLf(" 2 \n 1 \n#TRUE#\n 0 \n#TRUE#\n 1 \n#TRUE#\n"
                                                        " 0 \n 1 \n 0 \n 1 \n 100 \n 100.25 \n 100.125 \n 100.375 \n"));
  Dimension wanted = model;
  wanted.X1 = {0};
  expectSameProblem(read(), wanted);
}

// The coefficients run with the first index fastest, the function with the last one.
TEST_F(ProblemFiles, RunThroughCoefficientsAndFunctionInOppositeOrders) {
  Dimension model = gridProblem({2, 3, 2, 3});
  model.Degree = {1, 2, 1, 2};
  test::pretendFit(model);
  std::string coefficients, function;
  for (Long i3 = 0; i3 <= 2; ++i3)
    for (Long i2 = 0; i2 <= 1; ++i2)
      for (Long i1 = 0; i1 <= 2; ++i1)
        for (Long i0 = 0; i0 <= 1; ++i0) {
          model.Coef(i0, i1, i2, i3) = 1000 * (i0 + 1) + 100 * i1 + 10 * i2 + i3;
          coefficients += " " + std::to_string(1000 * (i0 + 1) + 100 * i1 + 10 * i2 + i3) + " \n";
        }
  for (Long i0 = 0; i0 <= 1; ++i0)
    for (Long i1 = 0; i1 <= 2; ++i1)
      for (Long i2 = 0; i2 <= 1; ++i2)
        for (Long i3 = 0; i3 <= 2; ++i3) {
          model.F(i0, i1, i2, i3) = -(1000 * (i0 + 1) + 100 * i1 + 10 * i2 + i3);
          function += "-" + std::to_string(1000 * (i0 + 1) + 100 * i1 + 10 * i2 + i3) + " \n";
        }
  expectWritten(model,
                " 3 \n"
                "\"x\",0,1,0,#FALSE#,0,1\n\"y\",0,2,0,#FALSE#,0,2\n"
                "\"z\",0,1,0,#FALSE#,0,1\n\"w\",0,2,0,#FALSE#,0,2\n"
                "#TRUE#\n" +
                    coefficients,
                " 3 \n 1 \n#TRUE#\n 2 \n#TRUE#\n 1 \n#TRUE#\n 2 \n#TRUE#\n"
                " 0 \n 1 \n 0 \n 1 \n 2 \n 0 \n 1 \n 0 \n 1 \n 2 \n" +
                    function + "36,.998,.012,.5,2.5,2.25\n");
}

TEST_F(ProblemFiles, HoldEveryFormOfNumber) {
  const double infinity = std::numeric_limits<double>::infinity();
  Dimension model = gridProblem({8});
  const std::vector<double> numbers = {0.5, -0.25, 1e-5, -1.5e-7, 1e15, 5e-324, infinity, -infinity};
  model.X0 = numbers;
  std::copy(numbers.begin(), numbers.end(), model.F.data());
  model.LowerLimit[0] = -infinity;
  model.UpperLimit[0] = 1e300;
  model.Centre[0] = 1e-300;
  const std::string lines = " .5 \n-.25 \n 1E-05 \n-1.5E-07 \n 1E+15 \n 4.94065645841247E-324 \n INF \n-INF \n";
  expectWritten(model, " 0 \n\"x\",-INF,1E+300,1E-300,#FALSE#,0,1\n#FALSE#\n", " 0 \n 7 \n#TRUE#\n" + lines + lines);
}

TEST_F(ProblemFiles, HoldNamesWithQuotesAndOtherLetters) {
  Dimension model = gridProblem({2, 2, 2, 2});
  model.VarName = {"5\" disk", "\"", " µ, °C ", ""};
  test::store(model, path());
  EXPECT_NE(test::readBytes(path()).find("\"5\" disk\",0,1"), std::string::npos);
  expectSameProblem(read(), model);
}

TEST_F(ProblemFiles, OfAnyProblemAreTheSameAfterSaveOpenSave) {
  std::mt19937_64 random(1);
  for (int n = 0; n < 300; ++n) {
    SCOPED_TRACE(n);
    test::FaultySteps quick;
    test::store(test::randomProblem(random), path(), quick);
    const std::string specification = test::readBytes(folder / "p");
    const std::string values = test::readBytes(folder / "p.dat");
    test::store(read(), path(), quick);
    expectBytes(specification, values);
    if (HasFailure()) return;
  }
}

}  // namespace
}  // namespace tavimor
