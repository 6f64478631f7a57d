#include "analysis/degree_map.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "analysis/remedy.h"
#include "analysis/right_digits.h"
#include "support/exact_fit.h"
#include "support/example.h"

namespace tavimor {
namespace {

struct Map {
  explicit Map(const Dimension& model)
      : data(problemData(model)), all(degreeMap(data, decompose(data), centresOf(data))) {}

  const DegreeCombination& recommended() const {
    for (const DegreeCombination& one : all)
      if (one.recommended) return one;
    throw std::runtime_error("none is recommended");
  }

  ProblemData data;
  std::vector<DegreeCombination> all;
};

Dimension surface(Long highest, double noise) {
  Dimension model =
      test::problem({{"x", test::spaced(-1, 2, 9), highest, 0.5}, {"y", test::spaced(0, 3, 7), highest, 1}});
  std::mt19937_64 random(5);
  test::tabulate(model, [&](double x, double y, double, double) {
    return 1 + x * x * y - 2 * y + noise * std::normal_distribution<double>()(random);
  });
  return model;
}

TEST(DegreeMap, HoldsEveryCombinationWithItsExactResidualSum) {
  Dimension model = surface(3, 0.01);
  const Map map(model);
  ASSERT_EQ(map.all.size(), 16u);
  for (const DegreeCombination& one : map.all) {
    model.Degree = one.degrees;
    const auto exact = test::exactFit(test::exactData(model, Reading::AsTyped));
    EXPECT_EQ(one.statistics.terms, exact->coefficients.size());
    EXPECT_GE(test::trueDigits(one.statistics.rss, exact->residualSum), 14.0);
  }
}

TEST(DegreeMap, RecommendsTheDegreesThatNoisyDataComeFrom) {
  const Map map(surface(4, 0.01));
  EXPECT_EQ(map.recommended().degrees, (PerVariable<Long>{2, 1, 0, 0}));
}

TEST(DegreeMap, RecommendsTheSmallestCombinationThatExactDataNeed) {
  const Map map(surface(4, 0.0));
  EXPECT_EQ(map.recommended().degrees, (PerVariable<Long>{2, 1, 0, 0}));
}

TEST(DegreeMap, DoesNotRecommendAsManyTermsAsPoints) {
  Dimension model = test::problem({{"x", {0, 1, 2, 3, 4}, 4, 0}});
  test::tabulate(model, [](double x, double, double, double) { return std::sqrt(x); });
  EXPECT_LT(Map(model).recommended().degrees[0], 4);
}

TEST(DegreeMap, LeavesOutWhatAnotherCombinationBeats) {
  const Map map(surface(3, 0.01));
  for (const DegreeCombination& one : map.all) {
    bool beaten = false;
    for (const DegreeCombination& other : map.all)
      beaten = beaten || (other.statistics.terms <= one.statistics.terms && *other.statistics.s < *one.statistics.s) ||
               (other.statistics.terms < one.statistics.terms && *other.statistics.s <= *one.statistics.s);
    EXPECT_EQ(one.beaten, beaten) << one.degrees[0] << one.degrees[1];
  }
}

TEST(DigitPredictor, ForetellsWhatTheFixedOrderKeeps) {
  int within = 0, tried = 0;
  for (const char* name : {"ozone", "load-cell", "heat-index", "silicon-index", "offset-print", "nist/wampler1"})
    for (const char* centre : {"*", "0"}) {
      test::Example example(name);
      for (SpecFields& fields : example.fields) fields.txtExpansion = centre;
      example.fit();
      PerVariable<CentreFrom> centres;
      centres.fill(*centre == '*' ? CentreFrom::Middle : CentreFrom::Number);
      const ProblemData data = problemData(example.model, Reading::AsStored, centres);
      const Decomposition decomposition = decompose(data);
      const PreciseFit fit = preciseFit(decomposition, centresOf(data));
      double worst = 15.0;
      for (std::size_t n = 0; n < fit.termCount(); ++n)
        if (!fit.coefficients[n].isNoise())
          worst = std::min(worst, rightDigits(example.model.Coef.data()[n], fit.coefficients[n].solution));
      const double predicted = DigitPredictor(data, decomposition, centresOf(data)).worstDigits(decomposition.z.extent);
      ++tried;
      within += predicted - worst <= 0.6 && predicted - worst >= -2.2 ? 1 : 0;
      RecordProperty(name, std::to_string(predicted - worst));
    }
  EXPECT_EQ(within, tried);
}

TEST(Remedy, IsTheMiddleWhereTheCentreIsFarAway) {
  test::Example example("nist/wampler1");
  for (SpecFields& fields : example.fields) fields.txtExpansion = "0";
  example.fit();
  const ProblemData data = problemData(example.model);
  const RemedyAdvice advice = adviseRemedy(data, decompose(data), 6.6);
  EXPECT_EQ(advice.remedy, Remedy::CentreInTheMiddle);
  EXPECT_GT(advice.predictedInTheMiddle, 12.0);
}

TEST(Remedy, IsThePreciseSolutionWhereTheMiddleDoesNotHelp) {
  const Dimension model = surface(3, 0.01);
  const ProblemData data = problemData(model);
  const Decomposition decomposition = decompose(data);
  EXPECT_EQ(adviseRemedy(data, decomposition, 3.0).remedy, Remedy::PreciseCoefficients);
  EXPECT_EQ(adviseRemedy(data, decomposition, 12.0).remedy, Remedy::None);
}

}  // namespace
}  // namespace tavimor
