#include "engine/parallel.h"

#include <algorithm>
#include <exception>
#include <thread>
#include <vector>

namespace tavimor {

namespace {

constexpr double kWorkWorthAThread = 5e7;

std::size_t partsOf(std::size_t count, double workOfOne, int threads) {
  if (threads > 0) return std::min(static_cast<std::size_t>(threads), count);
  if (static_cast<double>(count) * workOfOne < kWorkWorthAThread) return 1;
  return std::clamp<std::size_t>(std::thread::hardware_concurrency(), 1, count);
}

}  // namespace

void inParallel(std::size_t count, double workOfOne, int threads,
                const std::function<void(std::size_t first, std::size_t end)>& body) {
  const std::size_t parts = partsOf(count, workOfOne, threads);
  if (parts <= 1) return body(0, count);
  std::vector<std::exception_ptr> failures(parts);
  const auto run = [&](std::size_t part) {
    try {
      body(count * part / parts, count * (part + 1) / parts);
    } catch (...) {
      failures[part] = std::current_exception();
    }
  };
  std::vector<std::thread> others;
  others.reserve(parts - 1);
  std::size_t part = 1;
  try {
    for (; part < parts; ++part) others.emplace_back(run, part);
  } catch (const std::exception&) {  // no thread is to be had, or no memory for it
    for (; part < parts; ++part) run(part);
  }
  run(0);
  for (std::thread& other : others) other.join();
  for (const std::exception_ptr& failure : failures)
    if (failure) std::rethrow_exception(failure);
}

}  // namespace tavimor
