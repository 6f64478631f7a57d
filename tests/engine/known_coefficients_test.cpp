#include "support/known_coefficients.h"

#include <gtest/gtest.h>

#include <iomanip>
#include <iostream>
#include <limits>

#include "support/example.h"
#include "support/full_system.h"

namespace tavimor {
namespace {

using test::agreeingDigits;
using test::Coefficients;
using test::Example;
using test::knownResult;

struct DataSet {
  const char* name;
  const char* example;
  const char* table;
  std::vector<std::string> centres;  // as typed; "*" is the middle of the interval
  double digits;                     // that every coefficient reaches
};

// The floors are what the fit reached, rounded down. About the middle, Filip's own certified digits set the bound: the
// expansion cancels all but seven of the fifteen.
std::vector<DataSet> dataSets() {
  return {
      {"OzoneAboutZero", "ozone", "nist_norris", {"0"}, 12},
      {"OzoneAboutTheMiddle", "ozone", "nist_norris", {"*"}, 14},
      {"LoadCellAboutZero", "load-cell", "nist_pontius", {"0"}, 11},
      {"LoadCellAboutTheMiddle", "load-cell", "nist_pontius", {"*"}, 13},
      {"FilipAboutTheMiddle", "nist/filip", "nist_filip", {"*"}, 7},
      {"Wampler1AboutZero", "nist/wampler1", "nist_wampler1", {"0"}, 6.5},
      {"Wampler1AboutTheMiddle", "nist/wampler1", "nist_wampler1", {"*"}, 13.5},
      {"Wampler2AboutZero", "nist/wampler2", "nist_wampler2", {"0"}, 9.5},
      {"Wampler2AboutTheMiddle", "nist/wampler2", "nist_wampler2", {"*"}, 12},
      {"Wampler3AboutZero", "nist/wampler3", "nist_wampler3", {"0"}, 6.5},
      {"Wampler3AboutTheMiddle", "nist/wampler3", "nist_wampler3", {"*"}, 13.5},
      {"Wampler4AboutZero", "nist/wampler4", "nist_wampler4", {"0"}, 6.5},
      {"Wampler4AboutTheMiddle", "nist/wampler4", "nist_wampler4", {"*"}, 13.5},
      {"Wampler5AboutZero", "nist/wampler5", "nist_wampler5", {"0"}, 6.5},
      {"Wampler5AboutTheMiddle", "nist/wampler5", "nist_wampler5", {"*"}, 13.5},
      {"HeatIndexAboutZero", "heat-index", "heat_index", {"0", "0"}, 7.5},
      {"HeatIndexAboutTheMiddle", "heat-index", "heat_index", {"*", "*"}, 11.5},
      {"SoundSpeedAboutItsCentres", "sound-speed", "mackenzie", {"0", "35", "0"}, 7},
      {"SoundSpeedAboutTheMiddle", "sound-speed", "mackenzie", {"*", "*", "*"}, 10},
  };
}

// The centres about which the tables' coefficients are given.
PerVariable<double> givenCentres(const std::string& table) {
  return table == "mackenzie" ? PerVariable<double>{0, 35, 0, 0} : PerVariable<double>{};
}

Coefficients knownAboutTheCentresOf(const Dimension& model, const std::string& table) {
  Coefficients known = knownResult(table).coefficients;
  for (Long k = 0; k <= model.LastVar; ++k)
    known = test::expandedAbout(known, k, givenCentres(table)[k], model.Centre[k]);
  return known;
}

double worstDigits(const Dimension& model, const Coefficients& known) {
  double worst = 15.0;
  for (const auto& [j, coefficient] : known)
    worst = std::min(worst, agreeingDigits(model.Coef(j[0], j[1], j[2], j[3]), coefficient));
  return worst;
}

void state(const std::string& what, double digits) {
  std::ostringstream text;
  text << std::fixed << std::setprecision(1) << digits;
  testing::Test::RecordProperty(what, text.str());
  std::cout << "             " << what << ": " << text.str() << '\n';
}

class KnownCoefficients : public testing::TestWithParam<DataSet> {};

TEST_P(KnownCoefficients, AreReachedInTheAgreedDigits) {
  const DataSet& set = GetParam();
  Example example(set.example);
  example.fit(set.centres);
  ASSERT_TRUE(example.model.FitDone);
  const double digits = worstDigits(example.model, knownAboutTheCentresOf(example.model, set.table));
  state("log relative error of the coefficients", digits);
  EXPECT_GE(digits, set.digits);
}

INSTANTIATE_TEST_SUITE_P(Sets, KnownCoefficients, testing::ValuesIn(dataSets()),
                         [](const auto& set) { return set.param.name; });

TEST(KnownCoefficientsOfFilip, AboutZeroKeepNoDigit) {
  Example example("nist/filip");
  example.fit({"0"});
  const double digits = worstDigits(example.model, knownResult("nist_filip").coefficients);
  state("log relative error of the coefficients", digits);
  EXPECT_LT(digits, 1.0);
}

// Against coefficients that do not come from certified ones, so that nothing cancels.
TEST(KnownCoefficientsOfFilip, AboutTheMiddleAgreeWithALongerArithmetic) {
  if (std::numeric_limits<long double>::digits < 64) GTEST_SKIP() << "long double is no longer than double here";
  Example example("nist/filip");
  example.fit({"*"});
  const double digits = worstDigits(example.model, test::solutionOfTheFullSystem(example.model));
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
  // The certified standard deviation divides by the points less the terms, the program's by the points less two.
  const long double residualSum =
      certified["rsd"] * certified["rsd"] * (model.NumGridPoints - static_cast<Long>(model.Coef.size()));
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
