#include "analysis/decomposition.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "analysis/axis_parts.h"
#include "support/problem.h"

// The function is read as it is first; only what is seen of it tells whether it has to be read in another way.
namespace tavimor {
namespace {

Dimension table() {
  Dimension model = test::problem({{"x", test::spaced(-1, 2, 70), 3, 0}, {"y", test::spaced(0, 1, 41), 2, 0}});
  test::tabulate(model, [](double x, double y, double, double) { return std::sin(x + y) + x * y; });
  return model;
}

Dimension listOf(std::vector<double> values) {
  Dimension model = test::problem({{"x", std::move(values), 3, 0}});
  test::tabulate(model, [](double x, double, double, double) { return std::cos(x); });
  return model;
}

Dimension longList() { return listOf(test::spaced(-1, 2, kLongAxis + 77)); }

Dimension unevenLongList() {
  std::vector<double> values = test::spaced(-1, 2, kLongAxis + 77);
  for (double& value : values) value = value * value * value;
  return listOf(values);
}

struct ProblemCase {
  const char* name;
  Dimension (*make)();
};

const ProblemCase kProblems[] = {{"ATable", table}, {"ALongList", longList}, {"AnUnevenLongList", unevenLongList}};

class FunctionIn : public testing::TestWithParam<ProblemCase> {
 protected:
  Dimension model = GetParam().make();

  Decomposition decomposed(Reading reading) const { return decompose(problemData(model, reading)); }
};

// Times a power of two, which makes no difference to any digit.
TEST_P(FunctionIn, HasTheSameDigitsHoweverLargeOrSmallItIs) {
  const Decomposition wanted = decomposed(Reading::AsStored);
  for (const int power : {-800, -301, 299, 700}) {
    const Dimension first = model;
    for (std::size_t n = 0; n < model.F.size(); ++n) model.F.data()[n] = std::ldexp(model.F.data()[n], power);
    const Decomposition got = decomposed(Reading::AsStored);
    ASSERT_EQ(got.z.size(), wanted.z.size());
    EXPECT_EQ(std::ldexp(got.normOfFunction(), got.exponent), std::ldexp(wanted.normOfFunction(), power));
    for (std::size_t n = 0; n < wanted.z.size(); ++n)
      EXPECT_EQ(std::ldexp(got.z.at(n).high, got.exponent), std::ldexp(wanted.z.at(n).high, power)) << power;
    model = first;
  }
}

TEST_P(FunctionIn, IsNotDecomposedWhereANumberOfItIsNotFinite) {
  const std::size_t last = model.F.size() - 1;
  for (const Reading reading : {Reading::AsTyped, Reading::AsStored})
    for (const double bad : {std::numeric_limits<double>::infinity(), std::nan("")})
      for (const std::size_t place : {std::size_t{0}, last / 2, last}) {
        const double before = model.F.data()[place];
        model.F.data()[place] = bad;
        const Decomposition got = decomposed(reading);
        EXPECT_EQ(got.finding.obstacle, Obstacle::FunctionNotFinite) << place;
        EXPECT_EQ(got.z.size(), 0u);
        model.F.data()[place] = before;
      }
}

INSTANTIATE_TEST_SUITE_P(Problems, FunctionIn, testing::ValuesIn(kProblems),
                         [](const auto& one) { return std::string(one.param.name); });

// A polynomial of odd degree is 0 in the middle, where the largest value is.
TEST(Decomposition, DropsWhatIsNextToNothingBesideTheLargestValue) {
  Dimension model = test::problem({{"x", test::spaced(-1, 1, 5), 1, 0}});
  model.EquallySpaced[0] = true;
  model.F(2, 0, 0, 0) = 1;
  for (const Reading reading : {Reading::AsTyped, Reading::AsStored}) {
    model.F(4, 0, 0, 0) = 0x1p-400;
    EXPECT_NE(decompose(problemData(model, reading)).z.at(1).high, 0.0);
    model.F(4, 0, 0, 0) = 0x1p-600;
    EXPECT_EQ(decompose(problemData(model, reading)).z.at(1).high, 0.0);
  }
}

TEST(Decomposition, TellsOfANumberThatIsNotFiniteBeforeUnevenValues) {
  std::vector<double> values(30);
  for (std::size_t n = 0; n < values.size(); ++n) values[n] = std::pow(10.0, -0.4 * static_cast<double>(n));
  Dimension model = test::problem({{"x", values, 12, 0}});
  EXPECT_EQ(decompose(problemData(model)).finding.obstacle, Obstacle::ValuesTooUneven);
  model.F.data()[29] = std::nan("");
  EXPECT_EQ(decompose(problemData(model)).finding.obstacle, Obstacle::FunctionNotFinite);
}

}  // namespace
}  // namespace tavimor
