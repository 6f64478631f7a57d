#include "analysis/precise_fit.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "analysis/long_axis.h"
#include "support/exact_fit.h"
#include "support/example.h"
#include "support/known_fits.h"
#include "support/problem.h"

namespace tavimor {
namespace {

PreciseFit fitOf(const Problem& problem, Reading reading = Reading::AsTyped) {
  const ProblemData data = problemData(problem, reading);
  return preciseFit(decompose(data), centresOf(data));
}

Dimension line(std::vector<double> values, Long degree) {
  Dimension model = test::problem({{"x", std::move(values), degree, 0}});
  test::tabulate(model, [](double x, double, double, double) { return 1 + x; });
  return model;
}

TEST(PreciseFit, FewerDifferentValuesThanTermsDetermineNoFit) {
  const PreciseFit fit = fitOf(line({1, 2, 1, 2, 2}, 2));
  EXPECT_EQ(fit.finding.verdict, Verdict::NotDetermined);
  EXPECT_EQ(fit.finding.obstacle, Obstacle::FewDifferentValues);
  EXPECT_EQ(fit.finding.found, 2u);
}

TEST(PreciseFit, EquallySpacedValuesBetweenEqualLimitsAreOneValue) {
  Dimension model = line({3, 3, 3}, 1);
  model.EquallySpaced[0] = true;
  EXPECT_EQ(fitOf(model).finding.found, 1u);
}

TEST(PreciseFit, NumbersThatAreNotFiniteHaveNoSolution) {
  for (const double bad : {std::numeric_limits<double>::infinity(), std::nan("")}) {
    Dimension values = line({1, 2, 3}, 1);
    values.X0[1] = bad;
    EXPECT_EQ(fitOf(values).finding.obstacle, Obstacle::ValueNotFinite);
    Dimension function = line({1, 2, 3}, 1);
    function.F(1, 0, 0, 0) = bad;
    EXPECT_EQ(fitOf(function).finding.verdict, Verdict::NotFinite);
  }
}

TEST(PreciseFit, ValuesOverTwelveDecadesAreNotCertified) {
  Dimension model = line({1, 2, 3}, 8);
  std::vector<double> values;
  for (int n = 0; n < 30; ++n) values.push_back(std::pow(10.0, -0.4 * n));
  model = line(values, 12);
  const PreciseFit fit = fitOf(model);
  EXPECT_EQ(fit.finding.verdict, Verdict::NotCertified);
  EXPECT_EQ(fit.finding.obstacle, Obstacle::ValuesTooUneven);
}

TEST(PreciseFit, DegreesThatAreTooHighAreRefused) {
  const PreciseFit fit = fitOf(line(test::spaced(0, 1, 1100), 1024));
  EXPECT_EQ(fit.finding.obstacle, Obstacle::DegreeTooHigh);
}

TEST(PreciseFit, AsManyTermsAsPointsLeaveNoResidual) {
  Dimension model = line({0, 0.1, 0.3, 0.7}, 3);
  test::tabulate(model, [](double x, double, double, double) { return std::exp(x); });
  const PreciseFit fit = fitOf(model);
  EXPECT_LE(std::fabs(fit.residualSum.rounded()), fit.residualSum.bound);
}

TEST(PreciseFit, ALongAxisGivesWhatExactArithmeticGives) {
  for (const bool spaced : {true, false})
    for (const Long extra : {0, 1}) {
      const int count = static_cast<int>(kLongAxis + extra);
      Dimension model = line(test::spaced(-1, 1.5, count), 4);
      model.EquallySpaced[0] = spaced;
      test::tabulate(model, [](double x, double, double, double) { return std::exp(x); });
      const PreciseFit fit = fitOf(model);
      const auto exact = test::exactFit(test::exactData(model, Reading::AsTyped));
      ASSERT_TRUE(exact);
      for (std::size_t n = 0; n < fit.termCount(); ++n) {
        const Bounded& one = fit.coefficients[n].solution;
        EXPECT_LT(test::distance(one.value, exact->coefficients[n]), one.bound * std::pow(10, -3.5)) << n;
        EXPECT_LT(one.bound, 1e-20 * std::fabs(one.rounded()));
      }
    }
}

TEST(PreciseFit, TheSpreadIsTheRootOfTheInverseNormalMatrix) {
  const Dimension model = line({0, 1, 2, 3, 4}, 1);
  const PreciseFit fit = fitOf(model);
  EXPECT_NEAR(fit.coefficients[0].spread, std::sqrt(0.6), 1e-14);  // 1/5 + 2^2/10
  EXPECT_NEAR(fit.coefficients[1].spread, std::sqrt(0.1), 1e-14);
}

TEST(PreciseFit, DataThatDoublesHoldAreNoNoise) {
  const PreciseFit whole = fitOf(line({0, 1, 2, 3}, 1));
  EXPECT_EQ(whole.coefficients[0].rounding, 0.0);
  const PreciseFit rounded = fitOf(line({0, 0.1, 0.2, 0.3}, 1));
  EXPECT_GT(rounded.coefficients[0].rounding, 0.0);
}

TEST(PreciseFit, TermsThatTheDataLackAreNoise) {
  Dimension model = line(test::spaced(0.1, 2.3, 12), 3);
  const PreciseFit fit = fitOf(model);
  EXPECT_FALSE(fit.coefficients[0].isNoise());
  EXPECT_FALSE(fit.coefficients[1].isNoise());
  EXPECT_TRUE(fit.coefficients[2].isNoise());
  EXPECT_TRUE(fit.coefficients[3].isNoise());
}

struct NistSet {
  const char* example;
  const char* table;
};

class CertifiedCoefficients : public testing::TestWithParam<NistSet> {};

// The certified numbers have 15 digits, written in full; the precise ones rounded to as many are the same, or the
// sixteenth digit decides.
TEST_P(CertifiedCoefficients, AreAllReached) {
  test::Example example(GetParam().example);
  for (SpecFields& fields : example.fields) fields.txtExpansion = "0";
  CaptureSpecs(example.model, example.fields);
  const PreciseFit fit = fitOf(example.model);
  ASSERT_EQ(fit.finding.verdict, Verdict::Exact);
  const auto known = test::knownResult(GetParam().table);
  EXPECT_EQ(known.coefficients.size(), fit.termCount());
  for (const auto& [power, certified] : known.coefficients) {
    const long double precise = fit.coefficients[power[0]].solution.value.high;
    EXPECT_LE(std::fabs(precise - certified), 1e-14L * std::fabs(certified)) << power[0];
  }
  const double degrees = static_cast<double>(fit.points - fit.termCount());
  const double deviation = std::sqrt(std::max(0.0, fit.residualSum.rounded()) / degrees);
  const double certified = static_cast<double>(known.statistics.at("rsd"));
  if (certified > 0) {
    EXPECT_LE(std::fabs(deviation - certified), 1e-14 * certified);
  } else {
    EXPECT_LE(std::fabs(fit.residualSum.rounded()), fit.residualSum.bound);
  }
}

INSTANTIATE_TEST_SUITE_P(Sets, CertifiedCoefficients,
                         testing::Values(NistSet{"ozone", "nist_norris"}, NistSet{"load-cell", "nist_pontius"},
                                         NistSet{"nist/filip", "nist_filip"}, NistSet{"nist/wampler1", "nist_wampler1"},
                                         NistSet{"nist/wampler2", "nist_wampler2"},
                                         NistSet{"nist/wampler3", "nist_wampler3"},
                                         NistSet{"nist/wampler4", "nist_wampler4"},
                                         NistSet{"nist/wampler5", "nist_wampler5"}),
                         [](const auto& one) { return std::string(one.param.table); });

}  // namespace
}  // namespace tavimor
