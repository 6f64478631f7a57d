#include "model/grid_indices.h"

#include <gmock/gmock.h>

#include <vector>

#include "model/table4.h"

namespace tavimor {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Index = PerVariable<Long>;

template <Fastest fastest = Fastest::First>
std::vector<Index> visited(const Index& last) {
  std::vector<Index> indices;
  forEachIndex<fastest>(last, [&](const Index& index) { indices.push_back(index); });
  return indices;
}

TEST(ForEachIndex, RunsTheFirstAxisFastest) {
  EXPECT_THAT(visited({1, 0, 1, 0}),
              ElementsAre(Index{0, 0, 0, 0}, Index{1, 0, 0, 0}, Index{0, 0, 1, 0}, Index{1, 0, 1, 0}));
}

TEST(ForEachIndex, RunsTheLastAxisFastestWhereAsked) {
  EXPECT_THAT(visited<Fastest::Last>({1, 0, 1, 0}),
              ElementsAre(Index{0, 0, 0, 0}, Index{0, 0, 1, 0}, Index{1, 0, 0, 0}, Index{1, 0, 1, 0}));
}

TEST(ForEachIndex, GoesAsATableLiesInMemory) {
  Table4 table;
  table.redim({2, 1, 3, 2});
  std::vector<double> ranks;
  for (std::size_t n = 0; n < table.size(); ++n) table.data()[n] = static_cast<double>(n);
  forEachIndex(table.last(), [&](const Index& index) { ranks.push_back(table(index)); });
  ASSERT_EQ(ranks.size(), table.size());
  for (std::size_t n = 0; n < ranks.size(); ++n) EXPECT_EQ(ranks[n], static_cast<double>(n));
}

TEST(ForEachIndex, HasOneIndexWhereEveryBoundIsZeroAndNoneWhereOneIsNegative) {
  EXPECT_THAT(visited({0, 0, 0, 0}), ElementsAre(Index{}));
  EXPECT_THAT(visited({3, -1, 0, 0}), IsEmpty());
}

}  // namespace
}  // namespace tavimor
