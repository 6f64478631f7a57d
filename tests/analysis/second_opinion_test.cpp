#include "analysis/second_opinion.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>

#include "analysis/long_axis.h"
#include "analysis/right_digits.h"
#include "engine/fit.h"
#include "support/exact_fit.h"
#include "support/example.h"

namespace tavimor {
namespace {

using testing::HasSubstr;

Dimension wave(int count) {
  Dimension model = test::problem({{"x", test::spaced(-1, 2, count), 3, 0.5}});
  test::tabulate(model, [](double x, double, double, double) { return std::sin(x); });
  return model;
}

TEST(SecondOpinion, ToldToStopStops) {
  AnalysisOptions options;
  options.cancelled = [] { return true; };
  for (const int count : {30, static_cast<int>(kLongAxis)})
    EXPECT_THROW(secondOpinionOn(wave(count), Reading::AsTyped, {}, options), AnalysisCancelled);
}

TEST(SecondOpinion, TellsItsProgress) {
  for (const int count : {30, static_cast<int>(kLongAxis)}) {
    std::vector<double> shares;
    AnalysisOptions options;
    options.threads = 1;
    options.progress = [&](double share) { shares.push_back(share); };
    secondOpinionOn(wave(count), Reading::AsTyped, {}, options);
    ASSERT_FALSE(shares.empty());
    EXPECT_TRUE(std::is_sorted(shares.begin(), shares.end()));
    EXPECT_EQ(shares.back(), 1.0);
  }
}

TEST(SecondOpinion, NamesTheVariableThatDeterminesNoFit) {
  const Dimension model = test::problem({{"x", {1, 2, 3}, 1, 0}, {"speed", {4, 4, 4}, 1, 0}});
  const SecondOpinion opinion = secondOpinionOn(model);
  EXPECT_STREQ(verdictName(opinion.precise.finding.verdict), "not determined");
  EXPECT_EQ(reasonText(opinion.precise.finding, model),
            "variable \"speed\" has 1 different value, and its degree is 1");
}

TEST(ListedForm, HasAllDigitsRight) {
  for (const char* name : {"ozone", "offset-print", "silicon-index"}) {
    test::Example example(name);
    example.fit();
    const SecondOpinion opinion = secondOpinionOn(example.model);
    const ListedDigits digits = listedDigits(listedForm(opinion.precise), opinion.precise);
    EXPECT_EQ(digits.worst, kMostDigits) << name;
    EXPECT_GE(*digits.residualSum, 14.0);
    EXPECT_GE(*digits.standardError, 14.0);
    EXPECT_GE(*digits.correlation, 14.0);
    EXPECT_EQ(*digits.averageGiven, kMostDigits);
  }
}

TEST(ListedDigits, OfTheFiguresAreNeverTooMany) {
  for (const char* name : {"ozone", "load-cell", "silicon-index", "offset-print", "nist/filip", "nist/wampler4"}) {
    test::Example example(name);
    example.fit();
    const Dimension& model = example.model;
    const SecondOpinion opinion = secondOpinionOn(model);
    const ListedDigits digits = listedDigits(model, opinion.precise);
    const auto exact = test::exactFit(test::exactData(model, Reading::AsTyped));
    const mpq_class points(model.NumGridPoints);
    const mpq_class mean = exact->sum / points, total = exact->sumOfSquares - exact->sum * mean;
    EXPECT_LE(*digits.residualSum, test::trueDigits(model.SumRes2, exact->residualSum)) << name;
    EXPECT_LE(*digits.averageGiven, test::trueDigits(model.AvgGiven, mean)) << name;
    EXPECT_LE(*digits.averageEstimated, test::trueDigits(model.AvgEstimated, mean)) << name;
    // Of a root there are half a digit more than of its square: log10(2) of them.
    const mpq_class squaredError = mpq_class(model.StdErr) * mpq_class(model.StdErr);
    const mpq_class errorQuotient = squaredError / (exact->residualSum / (points - 2));
    EXPECT_LE(*digits.standardError, -test::log10Of(errorQuotient - 1) + 0.302) << name;
    const mpq_class squaredCorrelation = mpq_class(model.CorrCoef) * mpq_class(model.CorrCoef);
    const mpq_class correlationQuotient = squaredCorrelation / ((total - exact->residualSum) / total);
    EXPECT_LE(*digits.correlation, -test::log10Of(correlationQuotient - 1) + 0.302) << name;
  }
}

TEST(ListedDigits, AZeroThatIsListedAsZeroHasNoneToCount) {
  Dimension model = test::problem({{"x", {0, 1, 2, 3}, 1, 0}});
  test::tabulate(model, [](double x, double, double, double) { return 1 + x; });
  const PreciseFit precise = secondOpinionOn(model).precise;
  Fit listed = fit(model).fit;
  ASSERT_EQ(listed.SumRes2, 0.0);
  EXPECT_FALSE(listedDigits(listed, precise).residualSum);
  EXPECT_FALSE(listedDigits(listed, precise).standardError);
  listed.SumRes2 = 1e-9;
  EXPECT_EQ(*listedDigits(listed, precise).residualSum, 0.0);
}

TEST(ListedDigits, TwoPointsHaveNoStandardError) {
  Dimension model = test::problem({{"x", {0, 1}, 1, 0}});
  test::tabulate(model, [](double x, double, double, double) { return 1 + x; });
  EXPECT_FALSE(listedDigits(fit(model).fit, secondOpinionOn(model).precise).standardError);
}

}  // namespace
}  // namespace tavimor
