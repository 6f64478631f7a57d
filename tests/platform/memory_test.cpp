#include "platform/memory.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <vector>

namespace tavimor {
namespace {

constexpr std::size_t kMegabyte = std::size_t{1} << 20;

// Below and above the size from which memory comes in large pages, with and without a rest behind the last of them.
class ZeroedMemory : public testing::TestWithParam<std::size_t> {};

TEST_P(ZeroedMemory, IsZeroAndCanBeWrittenToItsLastByte) {
  for (int round = 0; round < 3; ++round) {  // what was given back may come again
    auto* bytes = static_cast<unsigned char*>(zeroedMemory(GetParam()));
    ASSERT_NE(bytes, nullptr);
    EXPECT_TRUE(std::all_of(bytes, bytes + GetParam(), [](unsigned char byte) { return byte == 0; }));
    std::fill(bytes, bytes + GetParam(), static_cast<unsigned char>(0xFF));
    releaseMemory(bytes, GetParam());
  }
}

INSTANTIATE_TEST_SUITE_P(Sizes, ZeroedMemory,
                         testing::Values(1, 4096, kMegabyte + 1, 3 * kMegabyte / 2, 2 * kMegabyte - 1, 2 * kMegabyte,
                                         2 * kMegabyte + 1, 4 * kMegabyte - 4096, 5 * kMegabyte, 32 * kMegabyte - 1));

TEST(MemoryOfLargePages, DoesNotOverlap) {
  std::vector<unsigned char*> owners;
  for (unsigned char n = 1; n <= 5; ++n) {
    owners.push_back(static_cast<unsigned char*>(zeroedMemory(3 * kMegabyte)));
    std::fill_n(owners.back(), 3 * kMegabyte, n);
  }
  for (unsigned char n = 1; n <= 5; ++n) {
    unsigned char* bytes = owners[n - 1u];
    EXPECT_EQ(std::count(bytes, bytes + 3 * kMegabyte, n), 3 * kMegabyte);
    releaseMemory(bytes, 3 * kMegabyte);
  }
}

#ifndef TAVIMOR_SANITIZED  // they end a program that asks for so much
TEST(MemoryOfLargePages, IsNullWhereThereIsNotSoMuch) {
  EXPECT_EQ(zeroedMemory(std::numeric_limits<std::size_t>::max() / 4), nullptr);
}
#endif

}  // namespace
}  // namespace tavimor
