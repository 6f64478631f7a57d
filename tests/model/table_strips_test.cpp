#include "model/table_strips.h"

#include <gmock/gmock.h>

#include <numeric>
#include <vector>

namespace tavimor {
namespace {

using testing::ElementsAre;

// table(i0, i1, i2) = 100 i0 + 10 i1 + i2
Table4 numbered() {
  Table4 table;
  table.redim({4, 1, 2, 0});
  for (Long i2 = 0; i2 <= 2; ++i2)
    for (Long i1 = 0; i1 <= 1; ++i1)
      for (Long i0 = 0; i0 <= 4; ++i0) table(i0, i1, i2, 0) = 100 * i0 + 10 * i1 + i2;
  return table;
}

TEST(TableStrips, TurnedHaveTheLastIndexFastest) {
  std::vector<double> turned(2 * 6);
  turnStrip(numbered(), 3, turned);
  EXPECT_THAT(turned, ElementsAre(300, 301, 302, 310, 311, 312, 400, 401, 402, 410, 411, 412));
}

TEST(TableStrips, PutBackMakeTheTableAgain) {
  const Table4 table = numbered();
  Table4 copy;
  copy.redim(table.last());
  for (std::size_t first = 0; first < 5; first += 2) {
    std::vector<double> turned(std::min<std::size_t>(2, 5 - first) * 6);
    turnStrip(table, first, turned);
    putStrip(turned, first, copy);
  }
  EXPECT_EQ(std::vector<double>(copy.data(), copy.data() + copy.size()),
            std::vector<double>(table.data(), table.data() + table.size()));
}

}  // namespace
}  // namespace tavimor
