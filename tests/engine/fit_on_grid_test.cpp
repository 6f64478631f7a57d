#include "engine/fit_on_grid.h"

#include <gtest/gtest.h>

#include <cmath>

#include "model/table_strips.h"
#include "model/value_lists.h"
#include "runtime/run_time_error.h"
#include "support/problem.h"

namespace tavimor {
namespace {

using test::problem;

TEST(Deviation, IsTheDistanceOfAValueFromTheCentre) {
  const Dimension model = problem({{"a", {1, 2}, 0, 0.5}, {"b", {3, 7}, 0, 10}});
  EXPECT_EQ(Deviation(model, 0, 1), 1.5);
  EXPECT_EQ(Deviation(model, 1, 0), -7.0);
}

TEST(Deviation, OfAVariableThatDoesNotExistIsZero) {
  const Dimension model = problem({{"a", {1, 2}, 0, 0.5}});
  EXPECT_EQ(Deviation(model, 4, 0), 0.0);
  EXPECT_EQ(Deviation(model, -1, 99), 0.0);
}

TEST(Deviation, BeyondTheListIsASubscriptError) {
  const Dimension model = problem({{"a", {1, 2}, 0, 0.5}});
  EXPECT_THROW(Deviation(model, 0, 2), RunTimeError);
  EXPECT_THROW(Deviation(model, 0, -1), RunTimeError);
}

TEST(FitOnGrid, IsThePolynomialAtEveryGridPoint) {
  Dimension model =
      problem({{"a", {-1, 0, 2}, 2, 1}, {"b", {3, 4}, 1, 0}, {"c", {0, 1, 2, 5}, 3, 2}, {"d", {-2, 2}, 1, -1}});
  model.Coef.redim(model.Degree);
  for (std::size_t n = 0; n < model.Coef.size(); ++n) model.Coef.data()[n] = static_cast<double>(n % 7) - 3;
  model.FitGrid = FitOnGrid(model, model.Coef);
  ASSERT_EQ(model.FitGrid.last(), model.LastPoint);
  test::forEachIndex(model.LastPoint, [&](Long i0, Long i1, Long i2, Long i3) {
    double sum = 0.0;
    test::forEachIndex(model.Degree, [&](Long j0, Long j1, Long j2, Long j3) {
      sum += model.Coef(j0, j1, j2, j3) * std::pow(model.X0[i0] - 1, j0) * std::pow(model.X1[i1], j1) *
             std::pow(model.X2[i2] - 2, j2) * std::pow(model.X3[i3] + 1, j3);
    });
    EXPECT_EQ(model.FitGrid(i0, i1, i2, i3), sum) << i0 << i1 << i2 << i3;  // whole numbers: exact in any order
  });
}

TEST(FitOnGrid, ADegreeAboveTheLastIndexIsASubscriptError) {
  Dimension model = problem({{"a", {1, 2}, 2, 0}});
  model.Coef.redim(model.Degree);
  EXPECT_THROW(FitOnGrid(model, model.Coef), RunTimeError);
}

TEST(FitOnGrid, TakesADegreeEqualToTheLastIndex) {
  Dimension model = problem({{"a", {1, 2, 3}, 2, 0}});
  model.Coef.redim(model.Degree);
  model.Coef(2, 0, 0, 0) = 1;
  model.FitGrid = FitOnGrid(model, model.Coef);
  EXPECT_EQ(model.FitGrid(2, 0, 0, 0), 9.0);
}

struct Extents {
  const char* name;
  PerVariable<Long> lastPoint;
  PerVariable<Long> degree;
};

class RowsOfShape : public testing::TestWithParam<Extents> {};

TEST_P(RowsOfShape, AreTheValuesOnTheGridToTheBit) {
  Dimension model;
  model.LastVar = 3;
  model.LastPoint = GetParam().lastPoint;
  model.Degree = GetParam().degree;
  for (Long k = 0; k < kMaxVariables; ++k) {
    ResizeVarValues(model, k);
    for (Long i = 0; i <= model.LastPoint[k]; ++i) valueOf(model, k, i) = std::sin(k + 0.37 * i);
    model.Centre[k] = 0.1 * k;
  }
  model.Coef.redim(model.Degree);
  for (std::size_t n = 0; n < model.Coef.size(); ++n) model.Coef.data()[n] = std::cos(static_cast<double>(n));
  for (const InstructionSet set :
       {InstructionSet::Plain, InstructionSet::Baseline, InstructionSet::Avx2, InstructionSet::Avx512}) {
    if (!hasInstructionSet(set)) continue;
    FitOptions options;
    options.instructionSet = set;
    const Table4 grid = FitOnGrid(model, model.Coef, options);
    const FittedRows rows(model, model.Coef, options);
    Table4 filled;
    filled.redim(model.LastPoint);
    const std::size_t length = grid.size() / grid.extent(0);
    std::vector<double> turned;
    for (std::size_t first = 0; first < grid.extent(0); first += 5) {  // four rows together, and one alone
      turned.resize(std::min<std::size_t>(5, grid.extent(0) - first) * length);
      rows.strip(first, turned);
      putStrip(turned, first, filled);
    }
    EXPECT_TRUE(std::equal(grid.data(), grid.data() + grid.size(), filled.data())) << static_cast<int>(set);
  }
}

INSTANTIATE_TEST_SUITE_P(
    FittedRows, RowsOfShape,
    testing::Values(Extents{"OneVariable", {40, 0, 0, 0}, {7, 0, 0, 0}}, Extents{"Two", {12, 30, 0, 0}, {3, 5, 0, 0}},
                    Extents{"Three", {6, 4, 9, 0}, {2, 4, 3, 0}}, Extents{"Four", {4, 3, 5, 6}, {4, 1, 2, 3}},
                    Extents{"ShortRows", {50, 1, 0, 0}, {9, 1, 0, 0}}, Extents{"Constant", {9, 9, 0, 0}, {0, 0, 0, 0}}),
    [](const auto& test) { return test.param.name; });

}  // namespace
}  // namespace tavimor
