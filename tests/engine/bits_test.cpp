#include <gmock/gmock.h>

#include <bit>
#include <cmath>
#include <limits>
#include <random>

#include "engine/Compute.h"
#include "model/value_lists.h"
#include "plain_problem.h"

// Every sum is one chain in a stated order, so the fit must give the bits of the plain loops on each instruction set
// that this processor has and for any number of threads.
namespace tavimor {
namespace {

constexpr InstructionSet kSets[] = {InstructionSet::Plain, InstructionSet::Baseline, InstructionSet::Avx2,
                                    InstructionSet::Avx512};

struct Shape {
  Long variables;
  PerVariable<Long> lastPoint;
  PerVariable<Long> degree;
};

class RandomProblems {
 public:
  explicit RandomProblems(unsigned seed) : random_(seed) {}

  Shape shape() {
    Shape shape{whole(1, 4), {}, {}};
    const Long mostPoints[] = {0, 300, 40, 14, 7};
    for (Long k = 0; k < shape.variables; ++k) {
      shape.lastPoint[k] = whole(1, mostPoints[shape.variables]);
      shape.degree[k] = std::min(whole(0, 15), shape.lastPoint[k]);
    }
    return shape;
  }

  Dimension problem(const Shape& shape) {
    Dimension model;
    model.LastVar = shape.variables - 1;
    model.LastPoint = shape.lastPoint;
    model.Degree = shape.degree;
    model.NumGridPoints = 1;
    for (Long k = 0; k < shape.variables; ++k) {
      model.NumGridPoints *= shape.lastPoint[k] + 1;
      model.Centre[k] = number();
      ResizeVarValues(model, k);
      for (double& value : valueList(model, k)) value = number();
    }
    model.F.redim(model.LastPoint);
    for (std::size_t n = 0; n < model.F.size(); ++n) model.F.data()[n] = number();
    return model;
  }

  Long whole(Long least, Long most) { return std::uniform_int_distribution<Long>(least, most)(random_); }
  double number() { return std::normal_distribution<double>(0.0, 2.0)(random_); }

 private:
  std::mt19937 random_;
};

plain::Problem plainFit(const Dimension& model) {
  plain::Problem problem = plain::problemOf(model);
  plain::fit(problem);
  return problem;
}

// A NaN has many bit patterns, and which one comes out of two is the processor's choice: they count as one.
bool sameBits(double a, double b) {
  return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b) || (std::isnan(a) && std::isnan(b));
}

std::size_t differences(const double* ours, const std::vector<double>& plain) {
  std::size_t count = 0;
  for (std::size_t n = 0; n < plain.size(); ++n) count += sameBits(ours[n], plain[n]) ? 0 : 1;
  return count;
}

std::string describe(const Dimension& model, InstructionSet set, int threads) {
  std::string text = "set " + std::to_string(static_cast<int>(set)) + ", " + std::to_string(threads) + " threads";
  for (Long k = 0; k <= model.LastVar; ++k)
    text += ", " + std::to_string(model.LastPoint[k] + 1) + " values of degree " + std::to_string(model.Degree[k]);
  return text;
}

void expectBitsOf(const plain::Problem& plain, Dimension model, const FitOptions& options) {
  SCOPED_TRACE(describe(model, options.instructionSet, options.threads));
  Compute(
      model, [](const std::string&) {}, options);
  ASSERT_EQ(model.FitDone, plain.fitDone);
  if (!plain.fitDone) return;
  ASSERT_EQ(model.Coef.size(), plain.coef.size());
  EXPECT_EQ(differences(model.Coef.data(), plain.coef), 0u);
  if (options.fittedValues == FittedValues::Kept) {
    ASSERT_EQ(model.FitGrid.size(), plain.fitGrid.size());
    EXPECT_EQ(differences(model.FitGrid.data(), plain.fitGrid), 0u);
  }
  EXPECT_TRUE(sameBits(model.CorrCoef, plain.corrCoef));
  EXPECT_TRUE(sameBits(model.SumRes2, plain.sumRes2));
  EXPECT_TRUE(sameBits(model.AvgGiven, plain.avgGiven));
  EXPECT_TRUE(sameBits(model.AvgEstimated, plain.avgEstimated));
  if (model.NumGridPoints > 2) {
    EXPECT_TRUE(sameBits(model.StdErr, plain.stdErr));
  }
}

void expectBitsEverywhere(const Dimension& model) {
  const plain::Problem plain = plainFit(model);
  for (const InstructionSet set : kSets) {
    if (!hasInstructionSet(set)) continue;
    FitOptions options;
    options.instructionSet = set;
    for (options.threads = 1; options.threads <= 3; ++options.threads) expectBitsOf(plain, model, options);
    options.fittedValues = FittedValues::PassedThrough;
    expectBitsOf(plain, model, options);
  }
}

TEST(Bits, RandomShapesGiveTheBitsOfThePlainLoops) {
  RandomProblems random(20261121);
  for (int n = 0; n < 150; ++n) expectBitsEverywhere(random.problem(random.shape()));
}

TEST(Bits, DegreesBeyondTheRegistersGiveTheBitsOfThePlainLoops) {
  RandomProblems random(7);
  for (const Long degree : {11, 12, 13, 24, 25, 40})
    for (const Long other : {0, 1, 8})
      expectBitsEverywhere(random.problem({2, {degree + 3, other + 2, 0, 0}, {degree, other, 0, 0}}));
}

TEST(Bits, OverflowAndNaNSpreadAsInThePlainLoops) {
  RandomProblems random(99);
  const double hostile[] = {std::numeric_limits<double>::infinity(),
                            std::numeric_limits<double>::quiet_NaN(),
                            1e200,
                            -1e308,
                            std::numeric_limits<double>::denorm_min(),
                            -0.0};
  for (int n = 0; n < 60; ++n) {
    Dimension model = random.problem(random.shape());
    const auto place = static_cast<std::size_t>(random.whole(0, static_cast<Long>(model.F.size()) - 1));
    model.F.data()[place] = hostile[n % std::size(hostile)];
    if (n % 4 == 0) valueList(model, 0)[0] = hostile[n / 4 % std::size(hostile)];
    expectBitsEverywhere(model);
  }
}

TEST(Bits, ALongFirstAxisGivesTheBitsOfThePlainLoops) {
  RandomProblems random(3);
  expectBitsEverywhere(random.problem({1, {70000, 0, 0, 0}, {8, 0, 0, 0}}));
  expectBitsEverywhere(random.problem({2, {130, 77, 0, 0}, {9, 9, 0, 0}}));
  expectBitsEverywhere(random.problem({3, {70, 9, 8, 0}, {6, 6, 6, 0}}));
}

}  // namespace
}  // namespace tavimor
