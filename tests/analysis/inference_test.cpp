#include "analysis/inference.h"

#include <gtest/gtest.h>

#include <cmath>

#include "analysis/distributions.h"
#include "analysis/figures.h"
#include "analysis/long_axis.h"
#include "analysis/statistic_texts.h"
#include "support/exact_fit.h"
#include "support/example.h"
#include "support/problem.h"

namespace tavimor {
namespace {

constexpr double kAllDigits = 1e-13;

void expectNear(double got, const mpq_class& wanted) { EXPECT_GE(test::trueDigits(got, wanted), 12.5) << got; }

// A small problem in two variables, and the exact fits of functions that are 1 at a single point: what a value of the
// function does to each coefficient, and to the estimate in its own place.
class SmallProblem : public testing::Test {
 protected:
  SmallProblem() : model(test::problem({{"x", {0, 0.1, 0.35, 0.7}, 2, 0.2}, {"y", {-1, 0.5, 2}, 1, 0}})) {
    test::tabulate(model,
                   [](double x, double y, double, double) { return std::round(1e6 * std::exp(x - y * x * x)) / 1e6; });
    problem = problemData(model);
    decomposition = decompose(problem);
    fit = preciseFit(decomposition, centresOf(problem));
    statistics = fitStatisticsOf(fit);
    exact = test::exactData(model, Reading::AsTyped);
    solution = *test::exactFit(exact);
    for (std::size_t n = 0; n < exact.function.size(); ++n) {
      test::ExactData unit = exact;
      for (std::size_t i = 0; i < unit.function.size(); ++i) unit.function[i] = i == n ? 1 : 0;
      influence.push_back(*test::exactFit(unit));
    }
  }

  mpq_class estimate(const std::vector<mpq_class>& coefficients, std::size_t point) const {
    const std::size_t count = exact.values[0].size();
    const mpq_class dx = exact.values[0][point % count] - exact.centre[0];
    const mpq_class dy = exact.values[1][point / count] - exact.centre[1];
    mpq_class sum, powerOfY = 1;
    for (std::size_t b = 0, n = 0; b < exact.terms[1]; ++b, powerOfY *= dy) {
      mpq_class power = powerOfY;
      for (std::size_t a = 0; a < exact.terms[0]; ++a, ++n, power *= dx) sum += coefficients[n] * power;
    }
    return sum;
  }

  mpq_class squaredSpread(std::size_t coefficient) const {
    mpq_class sum;
    for (const test::ExactFit& one : influence) sum += one.coefficients[coefficient] * one.coefficients[coefficient];
    return sum;
  }

  Dimension model;
  ProblemData problem;
  Decomposition decomposition;
  PreciseFit fit;
  FitStatistics statistics;
  test::ExactData exact;
  test::ExactFit solution;
  std::vector<test::ExactFit> influence;
};

TEST_F(SmallProblem, HasTheExactSums) {
  const mpq_class points(12);
  const mpq_class tss = solution.sumOfSquares - solution.sum * solution.sum / points;
  expectNear(statistics.rss, solution.residualSum);
  expectNear(*statistics.s * *statistics.s, solution.residualSum / 6);
  expectNear(*statistics.rSquared, 1 - solution.residualSum / tss);
  expectNear(*statistics.adjustedRSquared, 1 - solution.residualSum / 6 / (tss / 11));
  expectNear(*statistics.f, (tss - solution.residualSum) / 5 / (solution.residualSum / 6));
  expectNear(*statistics.gcv, points * solution.residualSum / 36);
  expectNear(*statistics.rms * *statistics.rms, solution.residualSum / points);
}

TEST_F(SmallProblem, HasTheInformationCriteriaOfItsResidualSum) {
  const double likelihood = 12 * std::log(solution.residualSum.get_d() / 12);
  EXPECT_NEAR(*statistics.bic, likelihood + 7 * std::log(12), 1e-10);
  EXPECT_NEAR(*statistics.aicc, likelihood + 14 + 2.0 * 7 * 8 / 4, 1e-10);
}

TEST_F(SmallProblem, HasTheExactStandardErrors) {
  for (std::size_t n = 0; n < fit.termCount(); ++n) {
    const CoefficientInference one = inferenceOf(fit.coefficients[n], statistics, 0.95);
    expectNear(*one.standardError * *one.standardError, squaredSpread(n) * solution.residualSum / 6);
    EXPECT_NEAR(*one.t, fit.coefficients[n].solution.rounded() / *one.standardError, kAllDigits * std::fabs(*one.t));
    EXPECT_NEAR((*one.high - *one.low) / 2, studentQuantile(0.95, 6) * *one.standardError, 1e-12);
  }
}

TEST_F(SmallProblem, HasTheExactPressAndLargestResidual) {
  const GridResiduals residuals = gridResiduals(problem, decomposition);
  mpq_class press, largest;
  for (std::size_t n = 0; n < influence.size(); ++n) {
    const mpq_class residual = exact.function[n] - estimate(solution.coefficients, n);
    const mpq_class deleted = residual / (1 - estimate(influence[n].coefficients, n));
    press += deleted * deleted;
    if (abs(residual) > abs(largest)) largest = residual;
  }
  ASSERT_TRUE(residuals.press);
  expectNear(*residuals.press, press);
  expectNear(residuals.largest, largest);
  const std::size_t at = residuals.largestAt[1] * 4 + residuals.largestAt[0];
  EXPECT_EQ(exact.function[at] - estimate(solution.coefficients, at), largest);
  const mpq_class tss = solution.sumOfSquares - solution.sum * solution.sum / 12;
  expectNear(*predictedRSquared(fit, residuals), 1 - press / tss);
}

TEST_F(SmallProblem, HasTheExactLeverageAndStudentisedResidualOfEachPoint) {
  const PointFigures figures = pointFigures(secondOpinionOn(model), model);
  for (std::size_t n = 0; n < influence.size(); ++n) {
    const mpq_class residual = exact.function[n] - estimate(solution.coefficients, n);
    const mpq_class leverage = estimate(influence[n].coefficients, n);
    expectNear(figures.leverage.data()[n], leverage);
    const double studentised = figures.studentised.data()[n];
    EXPECT_EQ(std::signbit(studentised), residual < 0);
    expectNear(studentised * studentised, residual * residual / (solution.residualSum / 6 * (1 - leverage)));
  }
}

TEST_F(SmallProblem, HasFiguresOfWhatIsListed) {
  const SecondOpinion opinion = secondOpinionOn(model);
  Fit listed = listedForm(opinion.precise);
  listed.Coef.data()[2] *= 1.0001;
  const FitFigures figures = fitFigures(opinion, model, listed);
  EXPECT_EQ(figures.doubt, "");
  EXPECT_EQ(figures.worstDigits, 3);
  EXPECT_EQ(figures.digits, (std::vector<std::optional<Long>>{15, 15, 3, 15, 15, 15}));
  for (std::size_t n = 0; n < fit.termCount(); ++n)
    expectNear(*figures.standardErrors[n] * *figures.standardErrors[n], squaredSpread(n) * solution.residualSum / 6);
}

TEST(FitFigures, OfDataThatDetermineNoFitAreADoubt) {
  const Dimension model = test::problem({{"x", {0, 1, 1}, 2, 0}});
  Fit listed;
  listed.Coef.redim({2, 0, 0, 0});
  const FitFigures figures = fitFigures(secondOpinionOn(model), model, listed);
  EXPECT_EQ(figures.doubt, "variable \"x\" has 2 different values, and its degree is 2");
  EXPECT_FALSE(figures.areKnown());
}

TEST(PointFigures, AreNotDefinedWhereTheyHaveNoScale) {
  Dimension model = test::problem({{"x", {0, 1, 2}, 2, 0}});
  test::tabulate(model, [](double x, double, double, double) { return std::exp(x); });
  const PointFigures figures = pointFigures(secondOpinionOn(model), model);
  for (std::size_t n = 0; n < 3; ++n) {
    EXPECT_NEAR(figures.leverage.data()[n], 1.0, 1e-15);
    EXPECT_TRUE(std::isnan(figures.studentised.data()[n]));
  }
}

TEST_F(SmallProblem, HasTheExactEstimateAndItsStandardErrorAtAPoint) {
  for (std::size_t n = 0; n < influence.size(); ++n) {
    const PointEstimate one = estimateAt(decomposition, {typedValue(model.X0[n % 4]), typedValue(model.X1[n / 4])});
    EXPECT_LE(test::distance(one.value.value, estimate(solution.coefficients, n)), one.value.bound);
    expectNear(one.spread * one.spread, estimate(influence[n].coefficients, n));
    const EstimateInference inference = inferenceOf(one, statistics, 0.9);
    EXPECT_NEAR(*inference.predictionHigh - *inference.predictionLow,
                2 * studentQuantile(0.9, 6) * *statistics.s * std::sqrt(1 + one.spread * one.spread), 1e-12);
    EXPECT_LT(*inference.predictionLow, *inference.low);
  }
}

TEST(GridResiduals, OfALongAxisAreThoseOfItsTable) {
  for (const bool spaced : {true, false}) {
    const auto residualsOf = [&](int count) {
      Dimension model = test::problem({{"x", test::spaced(-1, 1.5, count), 3, 0.2}});
      model.EquallySpaced[0] = spaced;
      test::tabulate(model, [](double x, double, double, double) { return std::exp(x); });
      const ProblemData data = problemData(model);
      const Decomposition decomposition = decompose(data);
      const GridResiduals residuals = gridResiduals(data, decomposition);
      return std::make_pair(residuals,
                            *residuals.press / fitStatisticsOf(preciseFit(decomposition, centresOf(data))).rss);
    };
    const auto [stored, storedRatio] = residualsOf(static_cast<int>(kLongAxis) - 1);
    const auto [streamed, streamedRatio] = residualsOf(static_cast<int>(kLongAxis));
    EXPECT_NEAR(streamed.largest, stored.largest, 1e-3 * std::fabs(stored.largest));
    EXPECT_NEAR(streamedRatio, storedRatio, 1e-6);
    EXPECT_NEAR(streamed.largestLeverage, 16.0 / kLongAxis, 1e-6);
  }
}

FitStatistics statisticsOf(const Dimension& model) {
  const ProblemData data = problemData(model);
  return fitStatisticsOf(preciseFit(decompose(data), centresOf(data)));
}

TEST(FitStatistics, AsManyTermsAsPointsLeaveNoFreedom) {
  Dimension model = test::problem({{"x", {0, 1, 2}, 2, 0}});
  test::tabulate(model, [](double x, double, double, double) { return std::exp(x); });
  const FitStatistics statistics = statisticsOf(model);
  EXPECT_TRUE(statistics.noFreedom);
  EXPECT_FALSE(statistics.s);
  EXPECT_FALSE(statistics.bic);
  const ProblemData data = problemData(model);
  EXPECT_FALSE(gridResiduals(data, decompose(data)).press);
}

TEST(FitStatistics, ResidualsThatCannotBeToldFromZeroAreZero) {
  Dimension model = test::problem({{"x", {0, 0.1, 0.2, 0.3, 0.4}, 1, 0}});
  test::tabulate(model, [](double x, double, double, double) { return std::round(10 * (1 + x)) / 10; });
  const FitStatistics statistics = statisticsOf(model);
  EXPECT_TRUE(statistics.residualsAreZero);
  EXPECT_EQ(statistics.rss, 0.0);
  EXPECT_EQ(statistics.rSquared, 1.0);
  EXPECT_FALSE(statistics.f);
  EXPECT_FALSE(statistics.aicc);
}

TEST(FitStatistics, AConstantFunctionHasNoCorrelation) {
  Dimension model = test::problem({{"x", {0, 1, 2, 3}, 1, 0}});
  test::tabulate(model, [](double, double, double, double) { return 7.0; });
  EXPECT_FALSE(statisticsOf(model).rSquared);
}

TEST(Distributions, AreThoseOfTheTables) {
  EXPECT_NEAR(studentQuantile(0.95, 10), 2.228138852, 1e-9);
  EXPECT_NEAR(twoSidedStudent(2.228138852, 10), 0.05, 1e-9);
  EXPECT_NEAR(upperFisher(4.964602744, 1, 10), 0.05, 1e-9);
  EXPECT_EQ(twoSidedStudent(1e200, 30), 0.0);
}

TEST(StatisticTexts, EachHasAKeyANameAndADefinition) {
  for (const StatisticText& text : statisticTexts()) {
    EXPECT_STRNE(text.key, "");
    EXPECT_STRNE(text.name, "");
    EXPECT_STRNE(text.definition, "");
  }
}

}  // namespace
}  // namespace tavimor
