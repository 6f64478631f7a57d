// Prints which part of a fit takes which share of its time, in one thread, for each size: the least time of a stage
// over several rounds, since what a noisy machine adds belongs to no stage. Behind them, how long saving takes against
// reading, where there is a disk in memory.
//   bench-stages FOLDER-OF-PROBLEMS
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <limits>
#include <numeric>
#include <vector>

#include "engine/fit.h"
#include "engine/fit_on_grid.h"
#include "engine/right_hand_side.h"
#include "engine/statistics.h"
#include "formats/open_problem.h"
#include "formats/problem_writer.h"
#include "measure.h"
#include "model/capture_specs.h"
#include "report/listing.h"

namespace {

using namespace tavimor;
using namespace tavimor::bench;

constexpr int kRounds = 15;
constexpr const char* kStages[] = {"reading", "sums", "fitted values", "statistics", "printing"};

std::vector<double> timesOfOneRound(const std::string& path) {
  FitOptions options;
  options.threads = 1;
  OpenedProblem opened;
  Table4 sums;
  double sumOfFitted = 0.0;
  std::size_t printed = 0;
  std::vector<double> seconds;
  seconds.push_back(secondsOf([&] { opened = openProblem(path); }));
  CaptureSpecs(opened.problem, opened.fields);
  seconds.push_back(secondsOf([&] { sums = rightHandSide(opened.problem, options); }));
  opened.fit = fit(opened.problem, options).fit;
  const Problem& problem = opened.problem;
  const auto statistics = [&](const FittedStrip& strips) {
    fitStatistics(problem.F, strips, sums(0, 0, 0, 0), problem.NumGridPoints, {});
  };
  const double withFitted = secondsOf([&] {
    const FittedRows rows(problem, opened.fit.Coef, options);
    statistics([&](std::size_t first, std::span<double> turned) { rows.strip(first, turned); });
  });
  const double alone =
      secondsOf([&] { statistics([&](std::size_t, std::span<double> turned) { sumOfFitted += turned[0]; }); });
  seconds.push_back(withFitted - alone);
  seconds.push_back(alone);
  seconds.push_back(secondsOf(
      [&] { ShowResults(opened.problem, opened.fit, [&](const std::string& line) { printed += line.size(); }); }));
  return printed > 0 && sums.size() > 0 && sumOfFitted == 0.0 ? seconds : std::vector<double>{};
}

// The least times of opening and of saving, on a disk that is memory: how long a real one takes to keep what it was
// given is not ours.
void printSaving(const std::string& path) {
  const std::filesystem::path folder = "/dev/shm";
  if (!std::filesystem::is_directory(folder)) return;
  const std::string copy = (folder / ("tavimor-bench-" + std::to_string(getpid()))).string();
  double reading = std::numeric_limits<double>::infinity(), saving = reading;
  for (int round = 0; round < kRounds; ++round) {
    OpenedProblem opened;
    reading = std::min(reading, secondsOf([&] { opened = openProblem(path); }));
    saving = std::min(saving, secondsOf([&] { writeProblem(opened.problem, opened.fit, copy, systemFileSteps()); }));
  }
  for (const std::string& name : {copy, copy + ".dat"}) std::filesystem::remove(name);
  std::printf("; saving %.1f times reading", saving / reading);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  for (const ProblemSize& size : kProblemSizes) {
    std::vector<double> least(std::size(kStages), std::numeric_limits<double>::infinity());
    for (int round = 0; round < kRounds; ++round) {
      const std::vector<double> seconds = timesOfOneRound(argv[1] + std::string("/") + size.name);
      for (std::size_t n = 0; n < least.size(); ++n) least[n] = std::min(least[n], seconds.at(n));
    }
    const double whole = std::accumulate(least.begin(), least.end(), 0.0);
    std::printf("%-4s", size.name);
    for (std::size_t n = 0; n < least.size(); ++n)
      std::printf("%s %s %.0f %% (%.2f ms)", n > 0 ? "," : "", kStages[n], 100 * least[n] / whole, 1e3 * least[n]);
    printSaving(argv[1] + std::string("/") + size.name);
    std::printf("\n");
  }
}
