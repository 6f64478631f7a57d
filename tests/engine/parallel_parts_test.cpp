#include "engine/parallel.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <latch>
#include <mutex>
#include <set>
#include <stdexcept>
#include <thread>
#include <vector>

namespace tavimor {
namespace {

constexpr double kLittleWork = 1, kMuchWork = 1e12;

struct Part {
  std::size_t first, end;

  auto operator<=>(const Part&) const = default;
};

// The parts in the order of their places.
std::vector<Part> partsOf(std::size_t count, double workOfOne, int threads) {
  std::mutex guard;
  std::set<Part> parts;
  inParallel(count, workOfOne, threads, [&](std::size_t first, std::size_t end) {
    const std::scoped_lock lock(guard);
    parts.insert({first, end});
  });
  return {parts.begin(), parts.end()};
}

TEST(InParallel, GivesEachPlaceToOnePartForAnyNumberOfThreads) {
  for (const std::size_t count : {1, 2, 3, 7, 64, 1000})
    for (const int threads : {1, 2, 3, 5, 16}) {
      std::size_t next = 0;
      for (const Part& part : partsOf(count, kLittleWork, threads)) {
        EXPECT_EQ(part.first, next);
        EXPECT_GT(part.end, part.first) << count << " in " << threads;
        next = part.end;
      }
      EXPECT_EQ(next, count);
    }
}

TEST(InParallel, MakesAsManyPartsAsThreadsAreAskedForButNoneWithoutAPlace) {
  EXPECT_EQ(partsOf(100, kLittleWork, 4).size(), 4u);
  EXPECT_EQ(partsOf(3, kLittleWork, 8).size(), 3u);
}

TEST(InParallel, PartsDifferByOnePlaceAtMost) {
  for (const Part& part : partsOf(100, kLittleWork, 7)) {
    EXPECT_GE(part.end - part.first, 14u);
    EXPECT_LE(part.end - part.first, 15u);
  }
}

TEST(InParallel, LittleWorkStaysInTheThreadOfItsCaller) {
  std::thread::id worker;
  inParallel(1000, kLittleWork, 0, [&](std::size_t first, std::size_t end) {
    worker = std::this_thread::get_id();
    EXPECT_EQ(first, 0u);
    EXPECT_EQ(end, 1000u);
  });
  EXPECT_EQ(worker, std::this_thread::get_id());
}

TEST(InParallel, MuchWorkGoesToAllProcessors) {
  EXPECT_EQ(partsOf(1000, kMuchWork, 0).size(), std::max(1u, std::thread::hardware_concurrency()));
}

TEST(InParallel, NoPlaceIsOnePartWithoutAny) {
  EXPECT_EQ(partsOf(0, kMuchWork, 0), (std::vector<Part>{{0, 0}}));
  EXPECT_EQ(partsOf(0, kMuchWork, 4), (std::vector<Part>{{0, 0}}));
}

// Three parts that wait for one another end only where they run at the same time.
TEST(InParallel, ThePartsRunAtTheSameTime) {
  std::latch allThere(3);
  inParallel(3, kLittleWork, 3, [&](std::size_t, std::size_t) { allThere.arrive_and_wait(); });
  EXPECT_TRUE(allThere.try_wait());
}

TEST(InParallel, AFailureOfAnyPartIsThrownWhenAllHaveEnded) {
  for (const std::size_t failing : {0, 1, 3}) {
    std::atomic<int> ended = 0;
    const auto body = [&](std::size_t first, std::size_t) {
      if (first == failing) throw std::runtime_error("part");
      std::this_thread::yield();
      ++ended;
    };
    EXPECT_THROW(inParallel(4, kLittleWork, 4, body), std::runtime_error);
    EXPECT_EQ(ended, 3);
  }
}

TEST(InParallel, TheFailureOfTheFirstPlaceIsTheOneThrown) {
  const auto body = [](std::size_t first, std::size_t) { throw std::runtime_error(std::to_string(first)); };
  try {
    inParallel(4, kLittleWork, 4, body);
    ADD_FAILURE() << "no failure";
  } catch (const std::runtime_error& error) {
    EXPECT_STREQ(error.what(), "0");
  }
}

}  // namespace
}  // namespace tavimor
