#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "problem_sizes.h"

/// What the measurements of time share.
namespace tavimor::bench {

inline double secondsOf(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// The time on processors, which does not count what other programs took in between.
inline double processorSecondsOf(const std::function<void()>& work) {
  const std::clock_t start = std::clock();
  work();
  return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

inline double median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

// What a process took: its time from start to end, the most memory that it held, and its time on a processor.
struct ProcessCost {
  double seconds = 0.0;
  long kilobytes = 0;
  double processorSeconds = 0.0;
};

struct Programs {
  std::string folder;
  std::string problems;

  ProcessCost cost(const std::string& program, const std::string& arguments) const {
    const std::string command = folder + "/process-cost " + folder + "/" + program + " " + arguments;
    std::FILE* output = popen(command.c_str(), "r");
    ProcessCost cost;
    const bool read = output != nullptr &&
                      std::fscanf(output, "%lf %ld %lf", &cost.seconds, &cost.kilobytes, &cost.processorSeconds) == 3;
    if (!read || pclose(output) != 0) throw std::runtime_error("cannot run " + command);
    return cost;
  }

  ProcessCost plain(const ProblemSize& size) const { return cost("plain-fit", problems + "/" + size.name); }
  ProcessCost ours(const ProblemSize& size) const {
    return cost("tavimor-cli", "fit --no-check " + problems + "/" + size.name);
  }
};

}  // namespace tavimor::bench
