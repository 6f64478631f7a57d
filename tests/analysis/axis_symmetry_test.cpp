#include "analysis/axis_symmetry.h"

#include <gtest/gtest.h>

#include "analysis/axis_basis.h"
#include "support/problem.h"

namespace tavimor {
namespace {

constexpr double kMost = 64 * kUnitRoundoff * kUnitRoundoff;

PairList coordinatesOf(const std::vector<double>& values) {
  PairList t(values.size());
  t.high = values;
  return t;
}

using Numbers = std::vector<std::size_t>;

TEST(Mirrored, ValuesOfASymmetricListAllAre) {
  PairList even = coordinatesOf({-1, -0.25, 0.25, 1}), odd = coordinatesOf({-1, -0.25, 0, 0.25, 1});
  EXPECT_EQ(mirrored(even, 4, kMost).values, (Numbers{0, 1}));
  EXPECT_EQ(mirrored(odd, 5, kMost).values, (Numbers{0, 1}));
  EXPECT_EQ(mirrored(odd, 5, kMost).moved, 0.0);
}

TEST(Mirrored, CoordinatesThatMissByTheirRoundingAreMoved) {
  PairList t = coordinatesOf({-1, -0.3, 0.3, 1});
  t.low[2] = 40 * kUnitRoundoff * kUnitRoundoff;
  const Mirrored found = mirrored(t, 4, kMost);
  EXPECT_EQ(found.values, (Numbers{0, 1}));
  EXPECT_EQ(t.high[1], -t.high[2]);
  EXPECT_EQ(t.low[1], -t.low[2]);
  EXPECT_EQ(found.moved, 20 * kUnitRoundoff * kUnitRoundoff + kPairError);
}

TEST(Mirrored, AValueThatMissesByMoreStaysWhereItIs) {
  PairList t = coordinatesOf({-1, -0.5, -0.25, 0.25, 0.5 + 1e-15, 1});
  EXPECT_EQ(mirrored(t, 6, kMost).values, (Numbers{0, 2}));
  EXPECT_EQ(t.high[4], 0.5 + 1e-15);
}

TEST(Mirrored, NoneIsWhereOneMissesByFarOrMostDoByALittle) {
  PairList far = coordinatesOf({-1, -0.5, -0.25, 0.26, 0.5, 1});
  EXPECT_TRUE(mirrored(far, 6, kMost).values.empty());
  PairList little = coordinatesOf({-1, -0.5 - 1e-15, -0.25 - 1e-15, -0.125 - 1e-15, 0.125, 0.25, 0.5, 1});
  EXPECT_TRUE(mirrored(little, 8, kMost).values.empty());
}

AxisBasis basisOf(const std::vector<double>& values, Long degree) {
  const Dimension model = test::problem({{"x", values, degree, 0}});
  return axisBasis(problemData(model).axis[0], {});
}

TEST(MirroredBasis, HasTheSameNumbersAtOppositeValuesButForTheirSigns) {
  for (const int count : {40, 41}) {
    std::vector<double> tenths(count);
    for (int i = 0; i < count; ++i) tenths[i] = (6 + 2 * i - count) / 10.0;
    const AxisBasis basis = basisOf(tenths, 5);
    ASSERT_FALSE(basis.mirrored.empty());
    for (const std::size_t i : basis.mirrored)
      for (std::size_t j = 0; j < basis.terms; ++j) {
        const Pair here = basis.values(i, j), there = basis.values(basis.count - 1 - i, j);
        EXPECT_EQ(here.high, j % 2 == 0 ? there.high : -there.high);
        EXPECT_EQ(here.low, j % 2 == 0 ? there.low : -there.low);
      }
  }
}

TEST(MirroredBasis, IsNotTakenOfUnevenValues) { EXPECT_TRUE(basisOf({1, 2, 4, 8, 16, 32}, 2).mirrored.empty()); }

}  // namespace
}  // namespace tavimor
