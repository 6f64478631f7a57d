#include "analysis/pictures/section.h"

#include "analysis/inference.h"
#include "analysis/pictures/pictured_test.h"

namespace tavimor {
namespace {

SectionChoice along(Long variable, const PerVariable<double>& at) {
  SectionChoice choice;
  choice.variable = variable;
  choice.at = at;
  return choice;
}

PointEstimate estimateAtX(const ShownFit& fit, PerVariable<double> point, double x) {
  point[0] = x;
  PerVariable<Pair> typed{};
  for (int k = 0; k < kMaxVariables; ++k) typed[k] = typedValue(point[k]);
  return estimateAt(fit.analysis->opinion.decomposition, typed);
}

TEST(Section, CurveAndBandsAreTheEstimatesAndIntervalsOfItsPoints) {
  const auto fit = pictured(roughProblem(3));
  const PerVariable<double> at{0.0, 0.33, 1.25, 0.0};
  const Section section = sectionOf(*fit, along(0, at));
  ASSERT_THAT(section.curves, SizeIs(1));
  ASSERT_TRUE(section.hasBands());
  const SectionCurve& curve = section.curves[0];
  for (std::size_t n = 0; n < section.x.size(); n += 13) {
    const PointEstimate estimate = estimateAtX(*fit, at, section.x[n]);
    const EstimateInference wanted = inferenceOf(estimate, fit->analysis->statistics, fit->analysis->level);
    EXPECT_NEAR(curve.value[n], estimate.value.rounded(), 1e-12);
    EXPECT_NEAR(curve.low[n], *wanted.low, 1e-12);
    EXPECT_NEAR(curve.high[n], *wanted.high, 1e-12);
    EXPECT_NEAR(curve.predictionLow[n], *wanted.predictionLow, 1e-12);
    EXPECT_NEAR(curve.predictionHigh[n], *wanted.predictionHigh, 1e-12);
  }
}

TEST(Section, ReachesATwentiethBeyondTheInterval) {
  const Section section = sectionOf(*pictured(roughProblem(1)), along(0, {}));
  EXPECT_DOUBLE_EQ(section.x.front(), -0.1);
  EXPECT_DOUBLE_EQ(section.x.back(), 2.1);
  EXPECT_EQ(section.interval.lower, 0.0);
  EXPECT_EQ(section.interval.upper, 2.0);
}

TEST(Section, OnTheGridItShowsTheGivenValuesOfItsLine) {
  const Dimension model = roughProblem(3);
  const Section section = sectionOf(*pictured(model), along(1, {model.X0[3], 0.0, model.X2[5], 0.0}));
  const SectionCurve& curve = section.curves[0];
  EXPECT_TRUE(curve.isOnGrid);
  EXPECT_EQ(curve.heldIndex, (PerVariable<Long>{3, 0, 5, 0}));
  ASSERT_THAT(curve.given, SizeIs(9));
  for (Long i = 0; i < 9; ++i) {
    EXPECT_EQ(curve.given[i].x, model.X1[i]);
    EXPECT_EQ(curve.given[i].y, model.F(3, i, 5, 0));
    EXPECT_EQ(curve.given[i].number, static_cast<std::size_t>(i));
  }
}

TEST(Section, BetweenGridValuesItShowsNone) {
  const Section section = sectionOf(*pictured(roughProblem(2)), along(0, {0.0, 0.3}));
  EXPECT_FALSE(section.curves[0].isOnGrid);
  EXPECT_THAT(section.curves[0].given, IsEmpty());
}

TEST(Section, OfAFamilyHasACurveForEachValueOfTheSecondVariable) {
  const auto fit = pictured(roughProblem(2));
  SectionChoice choice = along(0, {});
  choice.familyVariable = 1;
  choice.familyValues = {0.0, 0.7, 2.0};
  const Section section = sectionOf(*fit, choice);
  ASSERT_THAT(section.curves, SizeIs(3));
  for (std::size_t n = 0; n < 3; ++n) {
    const Section alone = sectionOf(*fit, along(0, {0.0, choice.familyValues[n]}));
    EXPECT_EQ(section.curves[n].value, alone.curves[0].value);
  }
}

TEST(Section, TheRangeInViewHoldsCurveBandAndGivenValuesWithinTheInterval) {
  const Section section = sectionOf(*pictured(roughProblem(1)), along(0, {}));
  double least = INFINITY, largest = -INFINITY;
  for (std::size_t n = 0; n < section.x.size(); ++n)
    if (section.x[n] >= 0.0 && section.x[n] <= 2.0) {
      least = std::min(least, section.curves[0].low[n]);
      largest = std::max(largest, section.curves[0].high[n]);
    }
  for (const PicturePoint& point : section.curves[0].given) {
    least = std::min(least, point.y);
    largest = std::max(largest, point.y);
  }
  EXPECT_EQ(section.least, least);
  EXPECT_EQ(section.largest, largest);
}

TEST(Section, AListedFitThatAnEyeCanTellFromTheExactOneIsShownToo) {
  Dimension model = test::problem({{"x", test::spaced(1000.0, 1001.0, 40), 6, 0.0}});
  test::tabulate(model, [](double x, double, double, double) { return std::sin(7 * x); });
  EXPECT_THAT(sectionOf(*pictured(model), along(0, {})).curves[0].listed, SizeIs(401));
  EXPECT_THAT(sectionOf(*pictured(roughProblem(1)), along(0, {})).curves[0].listed, IsEmpty());
}

TEST(Section, SaysInWordsWhereItGoes) {
  const Dimension model = roughProblem(2);
  const auto fit = pictured(model);
  const std::string text = sectionText(*fit, sectionOf(*fit, along(0, {0.0, model.X1[2]})));
  EXPECT_THAT(text, HasSubstr("The fit along x from 0 to 2."));
  EXPECT_THAT(text, HasSubstr("At y = 0.5: "));
  EXPECT_THAT(text, HasSubstr("9 given values shown."));
  EXPECT_THAT(text, HasSubstr("bands of 95 %"));
}

}  // namespace
}  // namespace tavimor
