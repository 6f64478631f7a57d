#include "analysis/pictures/surface_map.h"

#include "analysis/pictures/pictured_test.h"

namespace tavimor {
namespace {

MapChoice over(MapOf of, Long x, Long y, const PerVariable<double>& at = {}) { return {of, x, y, at}; }

TEST(SurfaceMap, OfTheFitHasTheEstimatesAtEquallySpacedPlaces) {
  const auto fit = pictured(roughProblem(3));
  const SurfaceMap map = mapOf(*fit, over(MapOf::Fit, 2, 0, {0.0, 0.3}));
  ASSERT_EQ(map.sheet.values.size(), map.sheet.x.size() * map.sheet.y.size());
  for (std::size_t j = 0; j < map.sheet.y.size(); j += 37)
    for (std::size_t i = 0; i < map.sheet.x.size(); i += 41) {
      const double wanted = estimateAt(fit->analysis->opinion.decomposition,
                                       {typedValue(map.sheet.y[j]), typedValue(0.3), typedValue(map.sheet.x[i]), 0.0})
                                .value.rounded();
      EXPECT_NEAR(map.sheet.at(i, j), wanted, 1e-12);
    }
}

TEST(SurfaceMap, OfGivenValuesAndResidualsHasThoseOfTheNearestGridPoint) {
  const Dimension model = roughProblem(3);
  const auto fit = pictured(model);
  const PerVariable<double> at{0.0, 0.0, model.X2[4], 0.0};
  const auto nearest = [](const std::vector<double>& values, double x) {
    const auto closer = [&](double a, double b) { return std::fabs(a - x) < std::fabs(b - x); };
    return static_cast<Long>(std::min_element(values.begin(), values.end(), closer) - values.begin());
  };
  const SurfaceMap given = mapOf(*fit, over(MapOf::Given, 0, 1, at));
  const SurfaceMap residual = mapOf(*fit, over(MapOf::Residual, 0, 1, at));
  const SurfaceMap relative = mapOf(*fit, over(MapOf::RelativeResidual, 0, 1, at));
  for (std::size_t j = 1; j < given.sheet.y.size(); j += 29)
    for (std::size_t i = 2; i < given.sheet.x.size(); i += 31) {
      const Long i0 = nearest(model.X0, given.sheet.x[i]), i1 = nearest(model.X1, given.sheet.y[j]);
      const double value = model.F(i0, i1, 4, 0);
      EXPECT_EQ(given.sheet.at(i, j), value);
      EXPECT_EQ(residual.sheet.at(i, j), fit->residual(i0, i1, 4, 0));
      EXPECT_EQ(relative.sheet.at(i, j), fit->residual(i0, i1, 4, 0) / std::fabs(value));
    }
}

TEST(SurfaceMap, ResidualsHaveColoursCentredOnZero) {
  const SurfaceMap map = mapOf(*pictured(roughProblem(2)), over(MapOf::Residual, 0, 1));
  EXPECT_EQ(map.scale, ColourScale::Deviations);
  EXPECT_EQ(map.range.least, -map.range.largest);
  EXPECT_THAT(map.contours, IsEmpty());
}

TEST(SurfaceMap, ContourLinesLieWhereTheFitHasTheirLevel) {
  const auto fit = pictured(roughProblem(2));
  const SurfaceMap map = mapOf(*fit, over(MapOf::Fit, 0, 1));
  ASSERT_FALSE(map.contours.empty());
  const double tolerance = 2e-3 * (map.range.largest - map.range.least);
  for (const ContourLine& line : map.contours)
    for (std::size_t n = 0; n < line.x.size(); n += 7) {
      const double value =
          estimateAt(fit->analysis->opinion.decomposition, {Pair(line.x[n]), Pair(line.y[n]), 0.0, 0.0})
              .value.rounded();
      EXPECT_NEAR(value, line.level, tolerance);
    }
}

TEST(SurfaceMap, MarksTheGridPointsOfItsPlane) {
  const Dimension model = roughProblem(3);
  const SurfaceMap map = mapOf(*pictured(model), over(MapOf::Fit, 0, 2, {0.0, model.X1[3]}));
  ASSERT_THAT(map.points, SizeIs(81));
  for (const PicturePoint& point : map.points) {
    const PerVariable<Long> index = gridIndexAt(model.F.last(), point.number);
    EXPECT_EQ(index[1], 3);
    EXPECT_EQ(point.x, model.X0[index[0]]);
    EXPECT_EQ(point.y, model.X2[index[2]]);
  }
}

TEST(SurfaceMap, OffTheGridThereIsAFitButNoGivenValue) {
  const auto fit = pictured(roughProblem(3));
  EXPECT_THAT(mapOf(*fit, over(MapOf::Fit, 0, 1, {0.0, 0.0, 0.3})).notShown, IsEmpty());
  EXPECT_EQ(mapOf(*fit, over(MapOf::Given, 0, 1, {0.0, 0.0, 0.3})).notShown,
            "No values are given at z = 0.3: choose a value of the grid.");
}

TEST(SurfaceMap, ValuesInAnyOrderAndRepeatedOnesAreShown) {
  Dimension model = test::problem({{"x", {2.0, 0.0, 1.0, 1.0}, 1, 0.0}, {"y", {5.0, -1.0, 3.0}, 1, 0.0}});
  test::tabulate(model, [](double x, double y, double, double) { return 10 * x + y * y; });
  const SurfaceMap map = mapOf(*pictured(model), over(MapOf::Given, 0, 1));
  EXPECT_EQ(map.sheet.values.front(), 1.0);  // x = 0, y = -1
  EXPECT_EQ(map.sheet.values.back(), 45.0);  // x = 2, y = 5
}

TEST(SurfaceMap, OfOneVariableThereIsNone) {
  EXPECT_EQ(mapOf(*pictured(roughProblem(1)), over(MapOf::Fit, 0, 1)).notShown, "A map takes two variables.");
}

TEST(SurfaceMap, SaysInWordsWhereItIsLeastAndLargest) {
  const auto fit = pictured(roughProblem(2));
  const MapChoice choice = over(MapOf::Given, 0, 1);
  const std::string text = mapText(*fit, choice, mapOf(*fit, choice));
  EXPECT_THAT(text, HasSubstr("The given value over x and y: least "));
  EXPECT_THAT(text, HasSubstr("largest 7.38906 at x = 2, y = 0."));
}

}  // namespace
}  // namespace tavimor
