// Measures the second opinion on one thread and the whole `fit` in turn, both by their time on processors, and prints
// ratios: medians over pairs.
//   bench-second-opinion FOLDER-OF-PROGRAMS FOLDER-OF-PROBLEMS
#include <cmath>
#include <cstdio>

#include "analysis/degree_map.h"
#include "analysis/second_opinion.h"
#include "formats/open_problem.h"
#include "held_memory.h"
#include "measure.h"

namespace {

using namespace tavimor;
using namespace tavimor::bench;

constexpr int kPairs = 15;

AnalysisOptions oneThread(InstructionSet set = widestInstructionSet()) {
  AnalysisOptions options;
  options.threads = 1;
  options.instructionSet = set;
  return options;
}

void compareWithFit(const std::string& name, const Problem& problem, const ProblemSize& size,
                    const Programs& programs) {
  std::vector<double> ratios, plainRatios;
  startHolding();
  secondOpinionOn(problem, Reading::AsTyped, {}, oneThread());
  const double megabytes = mostHeldMegabytes();
  for (int pair = 0; pair < kPairs; ++pair) {
    const double fitTime =
        programs.cost("tavimor-cli", "fit --no-check " + programs.problems + "/" + size.name).processorSeconds;
    const double ours = processorSecondsOf([&] { secondOpinionOn(problem, Reading::AsTyped, {}, oneThread()); });
    const double baseline = processorSecondsOf(
        [&] { secondOpinionOn(problem, Reading::AsTyped, {}, oneThread(InstructionSet::Baseline)); });
    ratios.push_back(ours / fitTime);
    plainRatios.push_back(baseline / ours);
  }
  std::printf("%-18s second opinion / whole fit %5.2f   baseline / widest set %4.1f   memory %.1f MB\n", name.c_str(),
              median(ratios), median(plainRatios), megabytes);
}

// Typed numbers that lie on no grid.
void makeUneven(Problem& problem) {
  for (std::size_t i = 0; i < problem.X0.size(); ++i)
    problem.X0[i] = std::round((problem.X0[i] + 1e-7 * std::sin(static_cast<double>(i))) * 1e12) / 1e12;
}

void compareMap(const Problem& problem, const ProblemSize& size) {
  const ProblemData data = problemData(problem);
  std::vector<double> ratios;
  for (int pair = 0; pair < kPairs; ++pair) {
    const double opinion = processorSecondsOf([&] { secondOpinionOn(problem, Reading::AsTyped, {}, oneThread()); });
    const double map = processorSecondsOf([&] { degreeMap(data, decompose(data, oneThread()), centresOf(data)); });
    ratios.push_back(map / opinion);
  }
  std::printf("%-18s map of degrees / second opinion %.2f\n", size.name, median(ratios));
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  const Programs programs{argv[1], argv[2]};
  for (const ProblemSize& size : kProblemSizes) {
    Problem problem = openProblem(programs.problems + "/" + size.name).problem;
    compareWithFit(size.name, problem, size, programs);
    if (size.name == std::string("XL")) compareMap(problem, size);
    if (size.variables > 1) continue;
    problem.EquallySpaced[0] = true;
    compareWithFit("W, equally spaced", problem, size, programs);
    problem.EquallySpaced[0] = false;
    makeUneven(problem);
    compareWithFit("W, typed unequal", problem, size, programs);
  }
}
