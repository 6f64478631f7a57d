#include "support/exact_fit.h"

#include <gtest/gtest.h>

#include <sstream>

#include "runtime/val.h"
#include "support/document.h"
#include "support/example.h"
#include "support/honesty.h"

namespace tavimor {
namespace {

const double kMostErrorOverBound = -3.5;  // the logarithm: a mistake in a formula would show
constexpr int kProblems = 300;            // as many as a test has time for; ./dev accuracy takes more

void expectHonest(const test::Honesty& honesty) {
  EXPECT_EQ(honesty.wrongVerdicts, 0u);
  EXPECT_LE(honesty.mostClaimedTooHigh, 0.0);
  EXPECT_LT(honesty.mostErrorOverBound, kMostErrorOverBound);
}

// The first of the problems that the page tells of.
const test::Honesty& honestyOfRandomProblems() {
  static const test::Honesty all = [] {
    std::mt19937_64 random(test::kSeedOfThePage);
    test::Honesty sum;
    for (int n = 0; n < kProblems; ++n) sum.add(test::judged(test::randomJudgedProblem(random)));
    return sum;
  }();
  return all;
}

TEST(Honesty, OfRandomProblems) {
  const test::Honesty& all = honestyOfRandomProblems();
  expectHonest(all);
  EXPECT_GT(all.coefficients, 1000u);
  EXPECT_GT(all.singular, 10u);
  EXPECT_LT(all.notCertified, 3u);
}

// "76,606, 6,200" are two numbers, "10^-3.7" is taken for its logarithm.
std::vector<double> numbersIn(std::string cell) {
  if (cell.starts_with("10^")) cell.erase(0, 3);
  std::vector<double> numbers;
  std::istringstream words(cell);
  for (std::string word; words >> word;) {
    std::erase(word, ',');
    numbers.push_back(Val(word));
  }
  return numbers;
}

class HonestyPage : public testing::Test {
 protected:
  // What the page and what the test has measured, for the row that begins with these words.
  struct Figures {
    std::vector<double> page, here;
  };
  Figures row(const std::string& words) const {
    for (const auto& [name, figures] : test::rowsOf(honestyOfRandomProblems()))
      if (name.starts_with(words)) return {numbersIn(page.row({name}).at(1)), numbersIn(figures)};
    throw std::runtime_error("no row " + words);
  }

  test::Document page{"numerics.md"};
};

TEST_F(HonestyPage, TellsOfAllProblems) {
  const Figures problems = row("problems"), coefficients = row("coefficients");
  EXPECT_EQ(problems.page.at(0), test::kProblemsOfThePage);
  for (const Figures& count : {problems, coefficients})
    for (std::size_t n = 0; n < 2; ++n) EXPECT_GT(count.page.at(n), count.here.at(n));
}

TEST_F(HonestyPage, TellsOfNoErrorWhereThereIsNone) {
  EXPECT_EQ(row("wrong verdicts").page, std::vector<double>{0});
  EXPECT_LE(row("most that claimed").page.at(0), 0.0);
  EXPECT_LT(row("largest error").page.at(0), kMostErrorOverBound);
}

TEST_F(HonestyPage, TellsTheWorstOfWhatIsMeasured) {
  for (const char* words : {"not certified", "most that claimed", "largest error"})
    EXPECT_GE(row(words).page.at(0), row(words).here.at(0)) << words;
  EXPECT_LE(row("fewest").page.at(0), row("fewest").here.at(0));
}

class HonestyOfExample : public testing::TestWithParam<const char*> {};

TEST_P(HonestyOfExample, AboutItsCentreAndAboutTheMiddle) {
  for (const CentreFrom centre : {CentreFrom::Number, CentreFrom::Middle})
    for (const Reading reading : {Reading::AsTyped, Reading::AsStored}) {
      test::Example example(GetParam());
      CaptureSpecs(example.model, example.fields);
      PerVariable<CentreFrom> centres;
      centres.fill(centre);
      if (centre == CentreFrom::Middle)
        for (Long k = 0; k <= example.model.LastVar; ++k)
          example.model.Centre[k] = (example.model.UpperLimit[k] + example.model.LowerLimit[k]) / 2;
      const test::Honesty honesty = test::judged({example.model, reading, centres});
      expectHonest(honesty);
      EXPECT_EQ(honesty.notCertified, 0u);
      EXPECT_GT(honesty.fewestDigits, 20.0);
    }
}

INSTANTIATE_TEST_SUITE_P(Examples, HonestyOfExample,
                         testing::Values("ozone", "load-cell", "heat-index", "sound-speed", "silicon-index",
                                         "offset-print", "nist/filip", "nist/wampler1", "nist/wampler2",
                                         "nist/wampler3", "nist/wampler4", "nist/wampler5"),
                         [](const auto& one) {
                           std::string name = one.param;
                           std::erase_if(name, [](char c) { return c == '/' || c == '-'; });
                           return name;
                         });

TEST(ExactFit, OfAPolynomialIsThePolynomial) {
  Dimension model = test::problem({{"x", {0, 1, 2, 3}, 2, 1}, {"y", {-1, 0.5, 2}, 1, 0}});
  test::tabulate(model, [](double x, double y, double, double) { return 3 + 2 * (x - 1) - (x - 1) * (x - 1) * y; });
  const auto fit = test::exactFit(test::exactData(model, Reading::AsTyped));
  ASSERT_TRUE(fit);
  EXPECT_EQ(fit->coefficients, (std::vector<mpq_class>{3, 2, 0, 0, 0, -1}));
  EXPECT_EQ(fit->residualSum, 0);
}

}  // namespace
}  // namespace tavimor
