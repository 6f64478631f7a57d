#include "model/table4.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <utility>

#include "support/expect_error.h"

namespace tavimor {
namespace {

using test::expectError;

constexpr Long kMost = std::numeric_limits<Long>::max();

// An element's indices as one number, to tell the elements apart.
double tag(Long i0, Long i1, Long i2, Long i3) { return 1000 * i0 + 100 * i1 + 10 * i2 + i3 + 0.5; }

Table4 taggedTable(const PerVariable<Long>& last) {
  Table4 table;
  table.redim(last);
  for (Long i0 = 0; i0 <= last[0]; ++i0)
    for (Long i1 = 0; i1 <= last[1]; ++i1)
      for (Long i2 = 0; i2 <= last[2]; ++i2)
        for (Long i3 = 0; i3 <= last[3]; ++i3) table(i0, i1, i2, i3) = tag(i0, i1, i2, i3);
  return table;
}

TEST(Table4, BeginsWithOneElementThatIsZero) {
  const Table4 table;
  EXPECT_EQ(table.size(), 1u);
  EXPECT_EQ(table(0, 0, 0, 0), 0);
}

TEST(Table4, BoundsAreLastIndices) {
  Table4 table;
  table.redim({4, 3, 2, 1});
  EXPECT_EQ(table.last(), (PerVariable<Long>{4, 3, 2, 1}));
  EXPECT_EQ(table.size(), 5u * 4 * 3 * 2);
  EXPECT_EQ(table.extent(2), 3u);
}

TEST(Table4, TheFirstIndexIsTheFastestInMemory) {
  const Table4 table = taggedTable({2, 1, 2, 1});
  std::size_t n = 0;
  for (Long i3 = 0; i3 <= 1; ++i3)
    for (Long i2 = 0; i2 <= 2; ++i2)
      for (Long i1 = 0; i1 <= 1; ++i1)
        for (Long i0 = 0; i0 <= 2; ++i0) EXPECT_EQ(table.data()[n++], tag(i0, i1, i2, i3));
  EXPECT_EQ(n, table.size());
}

TEST(Table4, StridesLeadToNeighbours) {
  const Table4 table = taggedTable({2, 3, 1, 2});
  EXPECT_EQ(table.data()[2 * table.stride(0)], tag(2, 0, 0, 0));
  EXPECT_EQ(table.data()[3 * table.stride(1)], tag(0, 3, 0, 0));
  EXPECT_EQ(table.data()[1 * table.stride(2)], tag(0, 0, 1, 0));
  EXPECT_EQ(table.data()[2 * table.stride(3)], tag(0, 0, 0, 2));
}

TEST(Table4, AnIndexOutsideItsBoundIsAnError) {
  Table4 table;
  table.redim({1, 2, 3, 4});
  EXPECT_NO_THROW(table(1, 2, 3, 4));
  expectError(ErrorNumber::SubscriptOutOfRange, [&] { table(2, 0, 0, 0); });
  expectError(ErrorNumber::SubscriptOutOfRange, [&] { table(0, 3, 0, 0); });
  expectError(ErrorNumber::SubscriptOutOfRange, [&] { table(0, 0, 4, 0); });
  expectError(ErrorNumber::SubscriptOutOfRange, [&] { table(0, 0, 0, 5); });
  expectError(ErrorNumber::SubscriptOutOfRange, [&] { table(-1, 0, 0, 0); });
  expectError(ErrorNumber::SubscriptOutOfRange, [&] { std::as_const(table)(0, 0, 0, -1); });
}

TEST(Table4, NewBoundsClearEveryElement) {
  Table4 table = taggedTable({1, 1, 1, 1});
  table.redim({1, 1, 1, 1});
  for (std::size_t n = 0; n < table.size(); ++n) EXPECT_EQ(table.data()[n], 0);
}

TEST(Table4, ABoundBelowZeroIsAnErrorAndChangesNothing) {
  Table4 table = taggedTable({1, 1, 0, 0});
  expectError(ErrorNumber::SubscriptOutOfRange, [&] { table.redim({1, -1, 0, 0}); });
  expectError(ErrorNumber::SubscriptOutOfRange, [&] { table.resizeKeeping({1, 1, 0, -2}); });
  EXPECT_EQ(table.last(), (PerVariable<Long>{1, 1, 0, 0}));
  EXPECT_EQ(table(1, 1, 0, 0), tag(1, 1, 0, 0));
}

TEST(Table4, BoundsThatNoMemoryHoldsAreAnErrorAndChangeNothing) {
  Table4 table = taggedTable({1, 1, 0, 0});
  for (const PerVariable<Long>& last :
       {PerVariable<Long>{kMost, kMost, kMost, kMost}, PerVariable<Long>{65535, 65535, 0, 0},
        PerVariable<Long>{kMost, 0, 0, 0}, PerVariable<Long>{0, 0, 1, kMost - 1}}) {
    expectError(ErrorNumber::OutOfMemory, [&] { table.redim(last); });
    expectError(ErrorNumber::OutOfMemory, [&] { table.resizeKeeping(last); });
  }
  EXPECT_EQ(table.size(), 4u);
  EXPECT_EQ(table(1, 1, 0, 0), tag(1, 1, 0, 0));
}

TEST(Table4, ResizingKeepsWhatLiesWithinBothBounds) {
  std::mt19937 random(1);
  const auto randomBounds = [&] {
    PerVariable<Long> last{};
    for (Long& bound : last) bound = static_cast<Long>(random() % 4);
    return last;
  };
  for (int n = 0; n < 200; ++n) {
    const PerVariable<Long> before = randomBounds(), after = randomBounds();
    Table4 table = taggedTable(before);
    table.resizeKeeping(after);
    ASSERT_EQ(table.last(), after);
    for (Long i0 = 0; i0 <= after[0]; ++i0)
      for (Long i1 = 0; i1 <= after[1]; ++i1)
        for (Long i2 = 0; i2 <= after[2]; ++i2)
          for (Long i3 = 0; i3 <= after[3]; ++i3) {
            const bool kept = i0 <= before[0] && i1 <= before[1] && i2 <= before[2] && i3 <= before[3];
            ASSERT_EQ(table(i0, i1, i2, i3), kept ? tag(i0, i1, i2, i3) : 0);
          }
  }
}

}  // namespace
}  // namespace tavimor
