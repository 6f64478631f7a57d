#include "support/known_fits.h"

#include <gtest/gtest.h>

#include <iomanip>
#include <iostream>
#include <limits>

#include "runtime/val.h"
#include "support/document.h"
#include "support/example.h"
#include "support/full_system.h"

namespace tavimor {
namespace {

using test::agreeingDigits;
using test::Coefficients;
using test::Example;
using test::knownResult;

void state(const std::string& what, double digits) {
  std::ostringstream text;
  text << std::fixed << std::setprecision(1) << digits;
  testing::Test::RecordProperty(what, text.str());
  std::cout << "             " << what << ": " << text.str() << '\n';
}

class KnownFits : public testing::TestWithParam<test::KnownFit> {};

// A cell of the page's table of examples, for the fit of a row.
std::string cellOfThePage(const test::KnownFit& fit, std::size_t column) {
  return test::Document("numerics.md").row(firstCells(fit)).at(column);
}

TEST_P(KnownFits, ReachTheDigitsThatThePageStates) {
  if (std::numeric_limits<long double>::digits < 64) GTEST_SKIP() << "long double is no longer than double here";
  constexpr std::size_t coefficientsColumn = 4, squaresColumn = 5;
  constexpr double printed = 0.1;
  Example example(GetParam().example);
  example.fit(GetParam().centres);
  ASSERT_TRUE(example.model.FitDone);
  const double digits = test::worstDigits(example.model, test::knownAboutTheCentresOf(example.model, GetParam().table));
  state("log relative error of the coefficients", digits);
  EXPECT_NEAR(digits, Val(cellOfThePage(GetParam(), coefficientsColumn)), printed);
  if (const auto certified = test::certifiedResidualSum(example.model, GetParam().table))
    EXPECT_NEAR(agreeingDigits(example.model.SumRes2, *certified), Val(cellOfThePage(GetParam(), squaresColumn)),
                printed);
  else
    EXPECT_EQ(cellOfThePage(GetParam(), squaresColumn), "-");
}

INSTANTIATE_TEST_SUITE_P(KnownCoefficients, KnownFits, testing::ValuesIn(test::knownFits()),
                         [](const auto& fit) { return fit.param.name; });

TEST(KnownCoefficientsOfFilip, AboutZeroKeepNoDigit) {
  Example example("nist/filip");
  example.fit({"0"});
  const double digits = test::worstDigits(example.model, knownResult("nist_filip").coefficients);
  state("log relative error of the coefficients", digits);
  EXPECT_LT(digits, 1.0);
}

// Against coefficients that do not come from certified ones, so that nothing cancels.
TEST(KnownCoefficientsOfFilip, AboutTheMiddleAgreeWithALongerArithmetic) {
  if (std::numeric_limits<long double>::digits < 64) GTEST_SKIP() << "long double is no longer than double here";
  Example example("nist/filip");
  example.fit({"*"});
  const double digits = test::worstDigits(example.model, test::solutionOfTheFullSystem(example.model));
  state("log relative error of the coefficients", digits);
  EXPECT_GE(digits, 9.5);
}

struct CertifiedSet {
  const char* name;
  const char* example;
  const char* table;
  double digits;  // of the residual sum
};

const CertifiedSet kCertifiedSets[] = {
    {"Ozone", "ozone", "nist_norris", 12},
    {"LoadCell", "load-cell", "nist_pontius", 10},
    {"Filip", "nist/filip", "nist_filip", 9},
    {"Wampler3", "nist/wampler3", "nist_wampler3", 12},
    {"Wampler4", "nist/wampler4", "nist_wampler4", 12},
    {"Wampler5", "nist/wampler5", "nist_wampler5", 12},
};

class CertifiedStatistics : public testing::TestWithParam<CertifiedSet> {};

TEST_P(CertifiedStatistics, AreReachedInTheAgreedDigits) {
  const CertifiedSet& set = GetParam();
  auto certified = knownResult(set.table).statistics;
  Example example(set.example);
  example.fit({"*"});
  const Dimension& model = example.model;
  ASSERT_TRUE(model.FitDone);
  const long double residualSum = test::certifiedResidualSum(model, set.table).value();
  const double ofResiduals = agreeingDigits(model.SumRes2, residualSum);
  const double ofError = agreeingDigits(model.StdErr, std::sqrt(residualSum / (model.NumGridPoints - 2)));
  const double ofCorrelation = agreeingDigits(model.CorrCoef, std::sqrt(certified["r2"]));
  state("log relative error of the sum of squared residuals", ofResiduals);
  state("log relative error of the standard error", ofError);
  state("log relative error of the correlation coefficient", ofCorrelation);
  EXPECT_GE(ofResiduals, set.digits);
  EXPECT_GE(ofError, set.digits);
  EXPECT_GE(ofCorrelation, set.digits);
}

INSTANTIATE_TEST_SUITE_P(Sets, CertifiedStatistics, testing::ValuesIn(kCertifiedSets),
                         [](const auto& set) { return set.param.name; });

TEST(PublishedFormula, TermsThatTheSpeedOfSoundLacksComeOutAsZero) {
  Example example("sound-speed");
  example.fit();
  const Dimension& model = example.model;
  ASSERT_TRUE(model.FitDone);
  const Coefficients known = knownResult("mackenzie").coefficients;
  int missing = 0;
  test::forEachIndex(model.Degree, [&](Long j0, Long j1, Long j2, Long j3) {
    if (known.contains({j0, j1, j2, j3})) return;
    ++missing;
    // The most that the term can add anywhere on the grid, in m/s beside a function of some 1500.
    const double most = model.Coef(j0, j1, j2, j3) * std::pow(30, j0) * std::pow(10, j1) * std::pow(8000, j2);
    EXPECT_NEAR(most, 0.0, 1e-5) << j0 << j1 << j2;
  });
  EXPECT_EQ(missing, 32 - 9);
}

TEST(PublishedFormula, TheHeatIndexIsReachedAtEveryPoint) {
  Example example("heat-index");
  example.fit({"*", "*"});
  ASSERT_TRUE(example.model.FitDone);
  EXPECT_LT(example.model.StdErr, 1e-9);
}

}  // namespace
}  // namespace tavimor
