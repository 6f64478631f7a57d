#include "formats/tables/column_values.h"

#include <gmock/gmock.h>

#include <limits>

namespace tavimor {

using testing::ElementsAre;

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

TEST(ColumnValues, AreAscendingAndKnowTheirRows) {
  const ColumnValues column = findValues(std::vector<double>{3, 1, 3, 2, 1}, 0);
  EXPECT_THAT(column.values, ElementsAre(1, 2, 3));
  EXPECT_THAT(column.index, ElementsAre(2, 0, 2, 1, 0));
  EXPECT_TRUE(column.merged.empty());
}

TEST(ColumnValues, RowsWithoutANumberHaveNoIndex) {
  const ColumnValues column = findValues(std::vector<double>{kNan, 5, kNan}, 0);
  EXPECT_THAT(column.index, ElementsAre(kNoIndex, 0, kNoIndex));
}

TEST(ColumnValues, BothZerosAreOne) { EXPECT_EQ(findValues(std::vector<double>{0.0, -0.0}, 0).values.size(), 1U); }

TEST(ColumnValues, TheMostFrequentOfThoseWithinTheToleranceStays) {
  const ColumnValues column = findValues(std::vector<double>{0, 10, 10.001, 10.001, 20}, 1E-3);
  EXPECT_THAT(column.values, ElementsAre(0, 10.001, 20));
  EXPECT_THAT(column.index, ElementsAre(0, 1, 1, 1, 2));
  ASSERT_EQ(column.merged.size(), 1U);
  EXPECT_THAT(column.merged[0].values, ElementsAre(10, 10.001));
  EXPECT_EQ(column.merged[0].kept, 10.001);
}

TEST(ColumnValues, ValuesFartherApartThanTheToleranceStay) {
  EXPECT_EQ(findValues(std::vector<double>{0, 10, 10.03, 20}, 1E-3).values.size(), 4U);
}

TEST(ColumnValues, AChainOfNeighboursIsNotMergedToOne) {
  EXPECT_THAT(findValues(std::vector<double>{0, 0.8, 1.6, 2.4, 100}, 0.01).values, ElementsAre(0, 1.6, 100));
}

TEST(ColumnValues, ARangeBeyondTheLargestDoubleMergesNothing) {
  EXPECT_EQ(findValues(std::vector<double>{-1E308, 0, 1E308}, 1E-9).values.size(), 3U);
}

TEST(ColumnValues, ManyValuesKeepTheirRows) {
  std::vector<double> numbers;
  for (int n = 0; n < 5000; ++n) numbers.push_back((n * 7919) % 5000 * 0.5);
  const ColumnValues column = findValues(numbers, 1E-9);
  ASSERT_EQ(column.values.size(), 5000U);
  for (std::size_t row = 0; row < numbers.size(); ++row) ASSERT_EQ(column.values[column.index[row]], numbers[row]);
}

}  // namespace tavimor
