#include <gtest/gtest.h>

#include <bit>
#include <random>

#include "analysis/long_axis.h"
#include "analysis/precise_fit.h"
#include "model/value_lists.h"
#include "support/problem.h"

// Threads and instruction sets are how an analysis is run: its numbers do not depend on them.
namespace tavimor {
namespace {

constexpr InstructionSet kSets[] = {InstructionSet::Plain, InstructionSet::Baseline, InstructionSet::Avx2,
                                    InstructionSet::Avx512};

std::vector<std::uint64_t> bitsOf(const PreciseFit& fit) {
  std::vector<std::uint64_t> bits;
  const auto add = [&](double value) { bits.push_back(std::bit_cast<std::uint64_t>(value)); };
  const auto addBounded = [&](const Bounded& one) {
    add(one.value.high);
    add(one.value.low);
    add(one.bound);
  };
  for (const PreciseCoefficient& one : fit.coefficients) {
    addBounded(one.solution);
    add(one.spread);
    add(one.rounding);
  }
  addBounded(fit.residualSum);
  addBounded(fit.totalSum);
  addBounded(fit.mean);
  return bits;
}

void expectSameBitsEverywhere(const ProblemData& data) {
  AnalysisOptions plain;
  plain.threads = 1;
  plain.instructionSet = InstructionSet::Plain;
  const PreciseFit wanted = preciseFit(decompose(data, plain), centresOf(data), plain);
  ASSERT_EQ(wanted.finding.verdict, Verdict::Exact);
  for (const InstructionSet set : kSets) {
    if (!hasInstructionSet(set)) continue;
    for (const int threads : {1, 2, 3}) {
      AnalysisOptions options;
      options.threads = threads;
      options.instructionSet = set;
      EXPECT_EQ(bitsOf(preciseFit(decompose(data, options), centresOf(data), options)), bitsOf(wanted))
          << "set " << static_cast<int>(set) << ", " << threads << " threads";
    }
  }
}

Dimension someProblem(const std::vector<int>& counts, Long degree, bool spaced) {
  std::mt19937_64 random(4);
  std::uniform_real_distribution<double> place(-1, 2);
  std::vector<test::Axis> axes;
  for (const int count : counts) {
    test::Axis axis{std::string(1, "xyzw"[axes.size()]), test::spaced(-1, 2, count), degree, 0.3};
    if (!spaced)
      for (double& value : axis.values) value = place(random);
    axes.push_back(axis);
  }
  Dimension model = test::problem(axes);
  for (Long k = 0; k <= model.LastVar; ++k) model.EquallySpaced[k] = spaced;
  test::tabulate(model, [&](double x, double y, double z, double w) {
    return std::exp(x) + y * z - w * std::sin(x * y) + 0.001 * place(random);
  });
  return model;
}

TEST(SameBits, OfTables) {
  for (const bool spaced : {true, false})
    for (const std::vector<int>& counts : std::vector<std::vector<int>>{{5}, {700}, {21, 21}, {3, 150}, {9, 8, 7, 6}}) {
      const Dimension model = someProblem(counts, 2, spaced);
      for (const Reading reading : {Reading::AsTyped, Reading::AsStored})
        expectSameBitsEverywhere(problemData(model, reading));
    }
}

TEST(SameBits, OfTablesOfListsThatAreSymmetricButForSomeValues) {
  Dimension model = someProblem({41, 65}, 3, true);
  model.EquallySpaced = {};
  model.X1[7] += 1e-14;
  for (const Reading reading : {Reading::AsTyped, Reading::AsStored})
    expectSameBitsEverywhere(problemData(model, reading));
}

TEST(SameBits, OfLongAxes) {
  for (const bool spaced : {true, false})
    for (const int extra : {0, 1}) {
      const Dimension model = someProblem({static_cast<int>(kLongAxis) + extra}, 6, spaced);
      expectSameBitsEverywhere(problemData(model));
    }
}

TEST(SameBits, OfLongAxesThatAreEqualButForTheLastDigits) {
  Dimension model = someProblem({static_cast<int>(kLongAxis) + 1}, 6, true);
  model.EquallySpaced[0] = false;
  for (const Reading reading : {Reading::AsTyped, Reading::AsStored})
    expectSameBitsEverywhere(problemData(model, reading));
}

TEST(SameBits, OfValuesTooSmallAndTooLargeForTheErrorTerms) {
  Dimension model = someProblem({30}, 3, false);
  for (std::size_t n = 0; n < model.F.size(); ++n) model.F.data()[n] *= n % 2 == 0 ? 1e-280 : 1e200;
  expectSameBitsEverywhere(problemData(model));
}

}  // namespace
}  // namespace tavimor
