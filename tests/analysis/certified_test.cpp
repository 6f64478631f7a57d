// The certified results of NIST's Statistical Reference Datasets for linear regression.
#include <gtest/gtest.h>

#include <cmath>

#include "analysis/inference.h"
#include "support/example.h"
#include "support/known_fits.h"

namespace tavimor {
namespace {

// The unit of the digit with this number, counted from the first one.
long double unitOfDigit(long double value, int digit) {
  return std::pow(10.0L, std::floor(std::log10(std::fabs(value))) - static_cast<long double>(digit - 1));
}

// Rounded to so many digits the value is the certified one, or would be if one digit further were one off.
void expectCertified(long double value, long double certified, int digits, Long power) {
  EXPECT_LE(std::fabs(value - certified), 0.6L * unitOfDigit(certified, digits)) << "power " << power;
}

struct NistSet {
  const char* example;
  const char* table;
};

class Certified : public testing::TestWithParam<NistSet> {
 protected:
  Certified() {
    for (SpecFields& fields : example_.fields) fields.txtExpansion = "0";
    CaptureSpecs(example_.model, example_.fields);
    const ProblemData data = problemData(example_.model);
    fit = preciseFit(decompose(data), centresOf(data));
    statistics = fitStatisticsOf(fit);
  }

  PreciseFit fit;
  FitStatistics statistics;
  test::KnownResult known = test::knownResult(GetParam().table);

 private:
  test::Example example_{GetParam().example};
};

TEST_P(Certified, CoefficientsAreReachedInFifteenDigits) {
  ASSERT_EQ(known.coefficients.size(), fit.termCount());
  for (const auto& [power, certified] : known.coefficients) {
    const Pair value = fit.coefficients[power[0]].solution.value;
    expectCertified(static_cast<long double>(value.high) + value.low, certified, 15, power[0]);
  }
}

TEST_P(Certified, DeviationsOfCoefficientsAreReachedInFourteenDigits) {
  const auto deviations = test::certifiedDeviations(GetParam().table);
  ASSERT_EQ(deviations.size(), fit.termCount());
  for (const auto& [power, certified] : deviations) {
    const double error = *inferenceOf(fit.coefficients[power[0]], statistics, 0.95).standardError;
    if (certified == 0)
      EXPECT_EQ(error, 0.0);
    else
      expectCertified(error, certified, 14, power[0]);
  }
}

TEST_P(Certified, ResidualDeviationAndCorrelationAreReachedToo) {
  const long double deviation = known.statistics.at("rsd");
  EXPECT_EQ(statistics.residualsAreZero, deviation == 0);
  if (deviation > 0) expectCertified(*statistics.s, deviation, 14, 0);
  expectCertified(*statistics.rSquared, known.statistics.at("r2"), 15, 0);
}

INSTANTIATE_TEST_SUITE_P(Sets, Certified,
                         testing::Values(NistSet{"ozone", "nist_norris"}, NistSet{"load-cell", "nist_pontius"},
                                         NistSet{"nist/filip", "nist_filip"}, NistSet{"nist/wampler1", "nist_wampler1"},
                                         NistSet{"nist/wampler2", "nist_wampler2"},
                                         NistSet{"nist/wampler3", "nist_wampler3"},
                                         NistSet{"nist/wampler4", "nist_wampler4"},
                                         NistSet{"nist/wampler5", "nist_wampler5"}),
                         [](const auto& one) { return std::string(one.param.table); });

}  // namespace
}  // namespace tavimor
