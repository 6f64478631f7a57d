#include <gmock/gmock.h>

#include <cmath>
#include <numeric>
#include <random>

#include "engine/Compute.h"
#include "support/full_system.h"
#include "support/problem.h"

namespace tavimor {
namespace {

using test::allIndices;
using test::at;
using test::compute;
using test::gridPoint;
using test::problem;
using test::term;

constexpr int kProblems = 60;

// A random problem of one to four variables whose values lie within [-1, 1] and whose centres lie among them, so that
// the systems are well conditioned and the tolerances can be small.
class RandomProblem : public testing::TestWithParam<unsigned> {
 protected:
  double number(double least, double most) { return std::uniform_real_distribution<double>(least, most)(random); }
  int whole(int least, int most) { return std::uniform_int_distribution<int>(least, most)(random); }

  std::vector<double> distinctValues(int count) {
    std::vector<double> values(count);
    for (int i = 0; i < count; ++i) values[i] = -1 + 2.0 * (i + number(0.1, 0.9)) / count;
    std::shuffle(values.begin(), values.end(), random);
    return values;
  }

  std::vector<test::Axis> randomAxes() {
    std::vector<test::Axis> axes;
    for (int k = whole(1, kMaxVariables); k > 0; --k) {
      const int degree = whole(0, 3);
      axes.push_back({"v" + std::to_string(k), distinctValues(degree + whole(1, 3)), degree, number(-0.5, 0.5)});
    }
    return axes;
  }

  void giveNoise(Dimension& model) {
    for (std::size_t n = 0; n < model.F.size(); ++n) model.F.data()[n] = number(-1, 1);
  }

  Table4 randomCoefficients(const PerVariable<Long>& degree) {
    Table4 coef;
    coef.redim(degree);
    for (std::size_t n = 0; n < coef.size(); ++n) coef.data()[n] = number(-1, 1);
    return coef;
  }

  std::mt19937 random{GetParam()};
};

TEST_P(RandomProblem, PolynomialDataAreRecovered) {
  Dimension model = problem(randomAxes());
  const Table4 known = randomCoefficients(model.Degree);
  const auto terms = allIndices(model.Degree);
  for (const auto& i : allIndices(model.LastPoint)) {
    long double sum = 0;
    for (const auto& j : terms) sum += at(known, j) * term(model, j, gridPoint(model, i));
    model.F(i[0], i[1], i[2], i[3]) = static_cast<double>(sum);
  }
  ASSERT_THAT(compute(model), testing::IsEmpty());
  ASSERT_TRUE(model.FitDone);
  for (const auto& j : terms) EXPECT_NEAR(at(model.Coef, j), at(known, j), 1e-7);
  EXPECT_NEAR(model.SumRes2, 0.0, 1e-15);
}

TEST_P(RandomProblem, TheFullSystemOfAllTermsHasTheSameSolution) {
  Dimension model = problem(randomAxes());
  giveNoise(model);
  compute(model);
  ASSERT_TRUE(model.FitDone);
  for (const auto& [j, coefficient] : test::solutionOfTheFullSystem(model)) {
    const double expected = static_cast<double>(coefficient);
    EXPECT_NEAR(at(model.Coef, j), expected, 1e-7 * std::max(1.0, std::fabs(expected)));
  }
}

TEST_P(RandomProblem, PermutingTheVariablesPermutesTheCoefficients) {
  const std::vector<test::Axis> axes = randomAxes();
  std::vector<std::size_t> order(axes.size());
  std::iota(order.begin(), order.end(), 0u);
  std::shuffle(order.begin(), order.end(), random);
  std::vector<test::Axis> permutedAxes;
  permutedAxes.reserve(axes.size());
  for (const std::size_t k : order) permutedAxes.push_back(axes[k]);

  Dimension model = problem(axes);
  giveNoise(model);
  Dimension permuted = problem(permutedAxes);
  const auto permutedIndex = [&](const PerVariable<Long>& i) {
    PerVariable<Long> result{};
    for (std::size_t k = 0; k < order.size(); ++k) result[k] = i[order[k]];
    return result;
  };
  for (const auto& i : allIndices(model.LastPoint)) {
    const PerVariable<Long> p = permutedIndex(i);
    permuted.F(p[0], p[1], p[2], p[3]) = at(model.F, i);
  }
  compute(model);
  compute(permuted);
  ASSERT_TRUE(model.FitDone && permuted.FitDone);
  for (const auto& j : allIndices(model.Degree)) {
    const double tolerance = 1e-8 * std::max(1.0, std::fabs(at(model.Coef, j)));
    EXPECT_NEAR(at(permuted.Coef, permutedIndex(j)), at(model.Coef, j), tolerance);
  }
  EXPECT_NEAR(permuted.SumRes2, model.SumRes2, 1e-10);
}

TEST_P(RandomProblem, TheEstimateAtAGridPointIsTheFittedValue) {
  Dimension model = problem(randomAxes());
  giveNoise(model);
  compute(model);
  ASSERT_TRUE(model.FitDone);
  for (const auto& i : allIndices(model.LastPoint)) {
    for (Long k = 0; k < kMaxVariables; ++k) model.t[k] = gridPoint(model, i)[k] - model.Centre[k];
    Evaluate(model);
    EXPECT_NEAR(model.S3, at(model.FitGrid, i), 1e-8);
  }
}

TEST_P(RandomProblem, TheResidualsAreOrthogonalToEveryTerm) {
  Dimension model = problem(randomAxes());
  giveNoise(model);
  compute(model);
  ASSERT_TRUE(model.FitDone);
  for (const auto& j : allIndices(model.Degree)) {
    long double sum = 0;
    for (const auto& i : allIndices(model.LastPoint))
      sum += (at(model.F, i) - at(model.FitGrid, i)) * term(model, j, gridPoint(model, i));
    EXPECT_NEAR(static_cast<double>(sum), 0.0, 1e-9);
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomProblem, testing::Range(1u, 1u + kProblems));

}  // namespace
}  // namespace tavimor
