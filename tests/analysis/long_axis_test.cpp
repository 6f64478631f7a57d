#include "analysis/long_axis.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "analysis/chebyshev_axis.h"
#include "analysis/grid_axis.h"
#include "analysis/precise_fit.h"
#include "support/exact_fit.h"
#include "support/problem.h"

namespace tavimor {
namespace {

std::vector<double> nearlyEqual(std::size_t count) { return test::spaced(-1, 1.5, static_cast<int>(count)); }

// Decimals of ten places that lie on no grid.
std::vector<double> uneven(std::size_t count) {
  std::vector<double> values = nearlyEqual(count);
  for (std::size_t i = 0; i < count; ++i)
    values[i] = std::round((values[i] + 1e-6 * std::sin(static_cast<double>(i))) * 1e10) / 1e10;
  return values;
}

std::vector<double> backwards(std::size_t count) {
  std::vector<double> values = nearlyEqual(count);
  std::reverse(values.begin(), values.end());
  return values;
}

std::vector<double> farFromZero(std::size_t count) { return test::spaced(1000, 1002.5, static_cast<int>(count)); }

std::vector<double> oneOffTheGrid(std::size_t count) {
  std::vector<double> values = nearlyEqual(count);
  values[count / 3] += 1e-5;
  return values;
}

std::vector<double> dense(std::size_t count) {
  std::vector<double> values = nearlyEqual(count);
  for (double& value : values) value = value * value * value;
  return values;
}

std::vector<double> oneFarAway(std::size_t count) {
  std::vector<double> values = uneven(count);
  for (double& value : values) value = std::round(value * 1e9) / 1e10;
  values.back() = 2;
  return values;
}

std::vector<double> inAnyOrder(std::size_t count) {
  std::vector<double> values = uneven(count);
  std::shuffle(values.begin(), values.end(), std::mt19937_64(6));
  return values;
}

struct LongCase {
  const char* name;
  std::vector<double> (*values)(std::size_t count);
  bool equallySpaced;
  Long degree;
};

const LongCase kLongCases[] = {
    {"EquallySpaced", nearlyEqual, true, 4},
    {"EqualButForTheLastDigits", nearlyEqual, false, 4},
    {"OfAHigherDegree", nearlyEqual, false, 9},
    {"FromTheLargestDown", backwards, false, 4},
    {"FarFromZero", farFromZero, false, 3},
    {"Uneven", uneven, false, 4},
    {"UnevenOfAHigherDegree", uneven, false, 9},
    {"OneValueOffTheGrid", oneOffTheGrid, false, 4},
    {"CloseTogetherInTheMiddle", dense, false, 5},
    {"InAnyOrder", inAnyOrder, false, 4},
    {"OneValueFarFromTheOthers", oneFarAway, false, 6},
    {"UnevenOfDegree1", uneven, false, 1},
    {"UnevenOfDegree0", uneven, false, 0},
    {"EquallySpacedOfDegree0", nearlyEqual, true, 0},
    {"EquallySpacedOfDegree1", nearlyEqual, true, 1},
};

class LongAxis : public testing::TestWithParam<LongCase> {};

TEST_P(LongAxis, GivesWhatExactArithmeticGives) {
  for (const std::size_t count : {kLongAxis, kLongAxis + 1, kLongAxis + 3000}) {
    const std::vector<double> values = GetParam().values(count);
    const double centre = std::round(10 * values[count / 2]) / 10;
    Dimension model = test::problem({{"x", values, GetParam().degree, centre}});
    model.EquallySpaced[0] = GetParam().equallySpaced;
    test::tabulate(model, [&](double x, double, double, double) { return std::exp(x - centre); });
    const ProblemData data = problemData(model);
    const PreciseFit fit = preciseFit(decompose(data), centresOf(data));
    const auto exact = test::exactFit(test::exactData(model, Reading::AsTyped));
    ASSERT_TRUE(exact);
    ASSERT_EQ(fit.finding.verdict, Verdict::Exact);
    for (std::size_t n = 0; n < fit.termCount(); ++n) {
      const Bounded& one = fit.coefficients[n].solution;
      EXPECT_LT(test::distance(one.value, exact->coefficients[n]), one.bound * std::pow(10, -3.5)) << n;
      EXPECT_LT(one.bound, 1e-3 * fit.coefficients[n].rounding) << n;
    }
    EXPECT_LT(test::distance(fit.residualSum.value, exact->residualSum), fit.residualSum.bound * std::pow(10, -3.5));
  }
}

INSTANTIATE_TEST_SUITE_P(Cases, LongAxis, testing::ValuesIn(kLongCases),
                         [](const auto& one) { return std::string(one.param.name); });

using Sums = std::optional<LongAxisSums>(const AxisData&, const FunctionValues&, const AnalysisOptions&);

bool serves(Sums& sums, std::vector<double> (*values)(std::size_t count)) {
  const Dimension model = test::problem({{"x", values(kLongAxis), 6, 0}});
  const ProblemData data = problemData(model);
  const FunctionValues function = functionValues(*data.function, data.reading);
  return sums(data.axis[0], function, {}).has_value();
}

TEST(ChebyshevAxis, IsLeftToOtherPolynomialsWhereValuesLieTooUnevenly) {
  EXPECT_TRUE(serves(chebyshevAxisSums, uneven));
  EXPECT_TRUE(serves(chebyshevAxisSums, dense));
  EXPECT_FALSE(serves(chebyshevAxisSums, oneFarAway));
}

TEST(GridAxis, HasListsThatAreOffTheGridByTheirLastDigitsAlone) {
  EXPECT_TRUE(serves(gridAxisSums, nearlyEqual));
  EXPECT_TRUE(serves(gridAxisSums, backwards));
  EXPECT_FALSE(serves(gridAxisSums, oneOffTheGrid));
  EXPECT_FALSE(serves(gridAxisSums, uneven));
}

// So many terms that Chebyshev's polynomials are too rough.
TEST(LongAxisOfManyTerms, IsTheSameFitAsThatOfFewerOnItsPart) {
  for (const bool equallySpaced : {true, false}) {
    Dimension model = test::problem({{"x", equallySpaced ? nearlyEqual(kLongAxis) : uneven(kLongAxis), 30, 0}});
    model.EquallySpaced[0] = equallySpaced;
    test::tabulate(model, [](double x, double, double, double) { return std::cos(x); });
    const ProblemData data = problemData(model);
    const Decomposition many = decompose(data);
    ASSERT_EQ(many.finding.verdict, Verdict::Exact);
    model.Degree[0] = 10;
    const ProblemData fewer = problemData(model);
    const PreciseFit fit = preciseFit(decompose(fewer), centresOf(fewer));
    const PreciseFit part = preciseFit(withTerms(many, {11, 1, 1, 1}), centresOf(data));
    for (std::size_t n = 0; n < fit.termCount(); ++n) {
      const Pair difference = fit.coefficients[n].solution.value - part.coefficients[n].solution.value;
      EXPECT_LE(std::fabs(difference.high), fit.coefficients[n].solution.bound + part.coefficients[n].solution.bound);
    }
  }
}

}  // namespace
}  // namespace tavimor
