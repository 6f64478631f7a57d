#include "support/exact_fit.h"

#include <gtest/gtest.h>

#include "support/example.h"
#include "support/honesty.h"

namespace tavimor {
namespace {

const double kMostErrorOverBound = -3.5;  // the logarithm: a mistake in a formula would show
constexpr int kProblems = 300;            // as many as a test has time for; ./dev accuracy takes more

void expectHonest(const test::Honesty& honesty) {
  EXPECT_EQ(honesty.wrongVerdicts, 0u);
  EXPECT_LE(honesty.mostClaimedTooHigh, 0.0);
  EXPECT_LT(honesty.mostErrorOverBound, kMostErrorOverBound);
}

TEST(Honesty, OfRandomProblems) {
  std::mt19937_64 random(20261121);
  test::Honesty all;
  for (int n = 0; n < kProblems; ++n) all.add(test::judged(test::randomJudgedProblem(random)));
  expectHonest(all);
  EXPECT_GT(all.coefficients, 1000u);
  EXPECT_GT(all.singular, 10u);
  EXPECT_LT(all.notCertified, 3u);
}

class HonestyOfExample : public testing::TestWithParam<const char*> {};

TEST_P(HonestyOfExample, AboutItsCentreAndAboutTheMiddle) {
  for (const CentreFrom centre : {CentreFrom::Number, CentreFrom::Middle})
    for (const Reading reading : {Reading::AsTyped, Reading::AsStored}) {
      test::Example example(GetParam());
      CaptureSpecs(example.model, example.fields);
      PerVariable<CentreFrom> centres;
      centres.fill(centre);
      if (centre == CentreFrom::Middle)
        for (Long k = 0; k <= example.model.LastVar; ++k)
          example.model.Centre[k] = (example.model.UpperLimit[k] + example.model.LowerLimit[k]) / 2;
      const test::Honesty honesty = test::judged({example.model, reading, centres});
      expectHonest(honesty);
      EXPECT_EQ(honesty.notCertified, 0u);
      EXPECT_GT(honesty.fewestDigits, 20.0);
    }
}

INSTANTIATE_TEST_SUITE_P(Examples, HonestyOfExample,
                         testing::Values("ozone", "load-cell", "heat-index", "sound-speed", "silicon-index",
                                         "offset-print", "nist/filip", "nist/wampler1", "nist/wampler2",
                                         "nist/wampler3", "nist/wampler4", "nist/wampler5"),
                         [](const auto& one) {
                           std::string name = one.param;
                           std::erase_if(name, [](char c) { return c == '/' || c == '-'; });
                           return name;
                         });

TEST(ExactFit, OfAPolynomialIsThePolynomial) {
  Dimension model = test::problem({{"x", {0, 1, 2, 3}, 2, 1}, {"y", {-1, 0.5, 2}, 1, 0}});
  test::tabulate(model, [](double x, double y, double, double) { return 3 + 2 * (x - 1) - (x - 1) * (x - 1) * y; });
  const auto fit = test::exactFit(test::exactData(model, Reading::AsTyped));
  ASSERT_TRUE(fit);
  EXPECT_EQ(fit->coefficients, (std::vector<mpq_class>{3, 2, 0, 0, 0, -1}));
  EXPECT_EQ(fit->residualSum, 0);
}

}  // namespace
}  // namespace tavimor
