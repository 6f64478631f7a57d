#include <benchmark/benchmark.h>

#include "engine/Compute.h"
#include "engine/right_hand_side.h"
#include "problem_sizes.h"

namespace tavimor::bench {
namespace {

double multiplyAdds(const Dimension& model) {
  return static_cast<double>(model.F.size()) * static_cast<double>(model.Coef.size());
}

void reportRate(benchmark::State& state, const Dimension& model) {
  state.counters["multiplyAdds"] =
      benchmark::Counter(multiplyAdds(model), benchmark::Counter::kIsIterationInvariantRate);
}

void RightHandSide(benchmark::State& state, const ProblemSize& size, InstructionSet set) {
  Dimension model = makeProblem(size);
  FitOptions options;
  options.threads = 1;
  options.instructionSet = set;
  for (auto _ : state) benchmark::DoNotOptimize(rightHandSide(model, options));
  reportRate(state, model);
}

void WholeFit(benchmark::State& state, const ProblemSize& size) {
  Dimension model = makeProblem(size);
  for (auto _ : state) Compute(model, [](const std::string&) {});
  reportRate(state, model);
}

void registerAll() {
  const std::pair<InstructionSet, const char*> sets[] = {{InstructionSet::Plain, "plain"},
                                                         {InstructionSet::Baseline, "baseline"},
                                                         {InstructionSet::Avx2, "avx2"},
                                                         {InstructionSet::Avx512, "avx512"}};
  for (const ProblemSize& size : kProblemSizes) {
    for (const auto& [set, name] : sets)
      if (hasInstructionSet(set))
        benchmark::RegisterBenchmark((std::string("RightHandSide/") + size.describes + "/" + name).c_str(),
                                     RightHandSide, size, set)
            ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark((std::string("Compute/") + size.describes).c_str(), WholeFit, size)
        ->Unit(benchmark::kMillisecond);
  }
}

}  // namespace
}  // namespace tavimor::bench

int main(int argc, char** argv) {
  tavimor::bench::registerAll();
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
