// Measures the plain loops and the engine in turn, in one run, and prints ratios: these machines are noisy, and a
// ratio of neighbours in time says more than two times. Each number is the median over the pairs.
//   bench-ratios FOLDER-OF-PROGRAMS FOLDER-OF-PROBLEMS
#include <cstdio>
#include <vector>

#include "engine/right_hand_side.h"
#include "measure.h"
#include "peak.h"
#include "plain_problem.h"
#include "problem_sizes.h"

namespace {

using namespace tavimor;
using namespace tavimor::bench;

constexpr int kPairs = 15;

const char* nameOf(InstructionSet set) {
  switch (set) {
    case InstructionSet::Plain: return "plain loops";
    case InstructionSet::Baseline: return "baseline";
    case InstructionSet::Avx2: return "AVX2";
    case InstructionSet::Avx512: return "AVX-512";
  }
  return "";
}

void compareRightHandSides(const ProblemSize& size, double peak) {
  Dimension model = makeProblem(size);
  plain::Problem problem = plain::problemOf(model);
  FitOptions options;
  options.threads = 1;
  std::vector<double> ratios, shares;
  for (int pair = 0; pair < kPairs; ++pair) {
    const double plainTime = secondsOf([&] { plain::accumulateRightHandSide(problem); });
    std::size_t terms = 0;
    const double ourTime = secondsOf([&] { terms = rightHandSide(model, options).size(); });
    ratios.push_back(plainTime / ourTime);
    shares.push_back(static_cast<double>(model.F.size()) * static_cast<double>(terms) / ourTime / peak);
  }
  std::printf("%-4s right-hand side, 1 thread: plain / ours %5.1f   share of the peak %3.0f %%\n", size.name,
              median(ratios), 100 * median(shares));
}

void compareProcesses(const ProblemSize& size, const Programs& programs) {
  std::vector<double> ratios, memory, plainTimes, ourTimes;
  for (int pair = 0; pair < kPairs; ++pair) {
    const ProcessCost plainCost = programs.plain(size);
    const ProcessCost ourCost = programs.ours(size);
    ratios.push_back(plainCost.seconds / ourCost.seconds);
    memory.push_back(static_cast<double>(ourCost.kilobytes) / static_cast<double>(plainCost.kilobytes));
    plainTimes.push_back(plainCost.seconds);
    ourTimes.push_back(ourCost.seconds);
  }
  std::printf("%-4s whole process: plain / ours %5.1f (%.1f / %.1f ms)   peak memory: ours / plain %.2f\n", size.name,
              median(ratios), 1e3 * median(plainTimes), 1e3 * median(ourTimes), median(memory));
}

void compareStartUp(const Programs& programs) {
  std::vector<double> ratios;
  for (int pair = 0; pair < 4 * kPairs; ++pair) {
    const double emptyTime = programs.cost("empty-program", "").seconds;
    ratios.push_back(programs.ours(kProblemSizes[0]).seconds / emptyTime);
  }
  std::printf("S    whole process: ours / an empty C++ program %.2f\n", median(ratios));
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  const double peak = multiplyAddPeak(widestInstructionSet());
  std::printf("Instruction set: %s, %.1f thousand million multiply-and-adds per second at most in one thread\n",
              nameOf(widestInstructionSet()), peak / 1e9);
  for (const ProblemSize& size : kProblemSizes) compareRightHandSides(size, peak);
  const Programs programs{argv[1], argv[2]};
  compareStartUp(programs);
  for (const ProblemSize& size : kProblemSizes) compareProcesses(size, programs);
}
