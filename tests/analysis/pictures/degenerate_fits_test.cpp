// What pictures say of problems at the edge: each shows something or says why not.
#include <gmock/gmock.h>

#include <functional>

#include "analysis/pictures/degree_picture.h"
#include "analysis/pictures/pictured_fits.h"
#include "analysis/pictures/residual_pictures.h"
#include "analysis/pictures/section.h"
#include "analysis/pictures/surface_map.h"

namespace tavimor {
namespace {

using test::pictured;
using test::spaced;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

constexpr char kZeroResiduals[] = "The residuals are 0 as far as can be told: there is nothing to show.";

struct Edge {
  std::string name;
  std::function<Dimension()> make;
  std::string section, fitMap, residuals;  // what is not shown
};

Dimension tabulated(const std::vector<test::Axis>& axes, const std::function<double(double, double)>& f) {
  Dimension model = test::problem(axes);
  test::tabulate(model, [&](double x, double y, double, double) { return f(x, y); });
  return model;
}

Dimension ofSize(double size) {
  return tabulated({{"x", spaced(0.0, 2.0, 9), 2, 1.0}, {"y", spaced(0.0, 1.0, 5), 1, 0.5}},
                   [=](double x, double y) { return size * (std::exp(x) + y * y); });
}

std::vector<Edge> edges() {
  const std::vector<double> nine = spaced(0.0, 2.0, 9), three = spaced(0.0, 2.0, 3);
  return {
      {"OnePointAVariable",
       [] {
         return tabulated({{"x", {5.0}, 0, 5.0}, {"y", {-1.0}, 0, 0.0}}, [](double, double) { return 42.0; });
       },
       "", "", kZeroResiduals},
      {"DegreeZero",
       [=] {
         return tabulated({{"x", nine, 0, 1.0}, {"y", nine, 0, 1.0}}, [](double x, double y) { return x + y; });
       },
       "", "", ""},
      {"AsManyCoefficientsAsPoints",
       [=] {
         return tabulated({{"x", three, 2, 1.0}, {"y", three, 2, 1.0}},
                          [](double x, double y) { return std::exp(x * y); });
       },
       "", "", kZeroResiduals},
      {"Constant",
       [=] {
         return tabulated({{"x", nine, 1, 1.0}, {"y", nine, 1, 1.0}}, [](double, double) { return 3.0; });
       },
       "", "", kZeroResiduals},
      {"Exact",
       [=] {
         return tabulated({{"x", nine, 2, 1.0}, {"y", nine, 1, 1.0}}, [](double x, double y) { return x * x - y; });
       },
       "", "", kZeroResiduals},
      {"Huge", [] { return ofSize(1e300); }, "", "", ""},
      {"Tiny", [] { return ofSize(1e-300); }, "", "", ""},
      {"HugeAxis",
       [] {
         return tabulated({{"x", spaced(0.0, 1e250, 9), 1, 5e249}, {"y", spaced(0.0, 1e-250, 9), 1, 5e-251}},
                          [](double x, double y) { return std::sin(x / 1e250) + std::exp(y * 1e250); });
       },
       "", "", ""},
      {"AxisBeyondPairs",
       [] {
         return tabulated({{"x", spaced(0.0, 1e300, 9), 1, 5e299}, {"y", spaced(0.0, 1e-300, 9), 1, 5e-301}},
                          [](double x, double y) { return std::sin(x / 1e300) + std::exp(y * 1e300); });
       },
       "?", "?", "?"},
      {"NoNumber",
       [=] {
         return tabulated({{"x", nine, 2, 1.0}, {"y", nine, 1, 1.0}},
                          [](double x, double) { return x > 1.9 ? NAN : x; });
       },
       "A coefficient of the fit is no number: there is nothing to show.",
       "A coefficient of the fit is no number: there is nothing to show.",
       "A coefficient of the fit is no number: there is nothing to show."},
      {"SameValues",
       [] {
         return tabulated({{"x", {1.0, 1.0, 1.0}, 1, 0.0}, {"y", {0.0, 1.0}, 1, 0.0}},
                          [](double, double y) { return y; });
       },
       "?", "?", "?"},
      {"LongNames",
       [=] {
         return tabulated({{std::string(300, 'x'), nine, 2, 1.0}, {std::string(300, 'y'), nine, 1, 1.0}},
                          [](double x, double y) { return std::exp(x) + y; });
       },
       "", "", ""},
  };
}

class DegenerateFit : public testing::TestWithParam<Edge> {};

TEST_P(DegenerateFit, ShowsSomethingOrSaysWhyNot) {
  const auto fit = pictured(GetParam().make());
  const auto expectTold = [](const std::string& notShown, const std::string& wanted) {
    if (wanted == "?")
      EXPECT_THAT(notShown, Not(IsEmpty()));
    else
      EXPECT_EQ(notShown, wanted);
  };
  SectionChoice along;
  for (Long k = 0; k <= fit->problem().LastVar; ++k) along.at[k] = gridValues(fit->problem(), k)[0];
  const Section section = sectionOf(*fit, along);
  expectTold(section.notShown, GetParam().section);
  EXPECT_THAT(sectionText(*fit, section), Not(IsEmpty()));
  const MapChoice ofFit{MapOf::Fit, 0, 1, along.at};
  const SurfaceMap map = mapOf(*fit, ofFit);
  expectTold(map.notShown, GetParam().fitMap);
  EXPECT_THAT(mapText(*fit, ofFit, map), Not(IsEmpty()));
  const SurfaceMap residuals = mapOf(*fit, {MapOf::Residual, 0, 1, along.at});
  expectTold(residuals.notShown, GetParam().residuals);
  const ResidualPictures pictures = residualPictures(*fit);
  expectTold(pictures.notShown, GetParam().residuals);
  EXPECT_THAT(residualText(*fit, pictures), Not(IsEmpty()));
}

INSTANTIATE_TEST_SUITE_P(Pictures, DegenerateFit, testing::ValuesIn(edges()),
                         [](const auto& edge) { return edge.param.name; });

}  // namespace
}  // namespace tavimor
