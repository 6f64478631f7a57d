#include "analysis/analysis.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

#include "analysis/degree_search.h"
#include "analysis/right_digits.h"
#include "engine/fit.h"
#include "support/example.h"
#include "support/problem.h"

namespace tavimor {
namespace {

// A cubic far from its centre, so that the fit has few digits right.
ListedProblem farAway() {
  Dimension model = test::problem({{"x", test::spaced(1000, 1010, 21), 3, 0}});
  test::tabulate(model, [](double x, double, double, double) { return 1 / x; });
  ListedProblem listed{model, {}, fit(model).fit, ListedFrom::FitMadeNow};
  SetDisplayedSpecs(listed.problem, listed.fields);
  listed.fields[0].txtExpansion = "0";
  return listed;
}

ListedProblem ozone(ListedFrom from) {
  test::Example example("ozone");
  example.fit();
  return {example.model, example.fields, example.model, from};
}

TEST(Analysis, TriesTheRemedyThatItAdvises) {
  const auto analysis = analyse(farAway());
  ASSERT_EQ(analysis->remedy.remedy, Remedy::CentreInTheMiddle);
  EXPECT_LT(analysis->remedy.digitsNow, 6);
  EXPECT_GT(analysis->remedy.digitsThen, analysis->remedy.digitsNow + 6);
}

TEST(Analysis, KnowsTheResultsOfFilesThatAreNotTheFitOfTheirData) {
  EXPECT_EQ(analyse(ozone(ListedFrom::Files))->listed.from, ListedFrom::Files);
  ListedProblem changed = ozone(ListedFrom::Files);
  changed.problem.F.data()[0] += 1;
  EXPECT_EQ(analyse(std::move(changed))->listed.from, ListedFrom::FilesOfOtherData);
}

TEST(Analysis, PreciseCoefficientsFromFilesAreOfTheirData) {
  ListedProblem listed = ozone(ListedFrom::Files);
  listed.fit = listedForm(analyse(ozone(ListedFrom::FitMadeNow))->opinion.precise);
  const auto analysis = analyse(std::move(listed));
  EXPECT_EQ(analysis->listed.from, ListedFrom::Files);
  EXPECT_EQ(analysis->digits.worst, kMostDigits);
}

TEST(Analysis, HasAnIntervalForEachCoefficientAndNoDigitsWhereNothingIsListed) {
  const auto analysis = analyse(ozone(ListedFrom::Nowhere));
  EXPECT_EQ(analysis->inference.size(), analysis->opinion.data.terms());
  EXPECT_TRUE(analysis->digits.coefficients.empty());
}

TEST(Analysis, WiderLevelsGiveWiderIntervals) {
  const auto usual = analyse(ozone(ListedFrom::FitMadeNow)), wide = analyse(ozone(ListedFrom::FitMadeNow), 0.99);
  EXPECT_LT(*wide->inference[0].low, *usual->inference[0].low);
  EXPECT_GT(*wide->inference[0].high, *usual->inference[0].high);
}

TEST(Analysis, ToldToStopInTheMiddleOfTheRemedyStops) {
  int asked = 0;
  AnalysisOptions options;
  options.threads = 1;
  options.cancelled = [&] { return ++asked, false; };
  analyse(farAway(), 0.95, Reading::AsTyped, options);
  const int last = std::exchange(asked, 0);
  options.cancelled = [&] { return ++asked == last; };
  EXPECT_THROW(analyse(farAway(), 0.95, Reading::AsTyped, options), AnalysisCancelled);
}

// Notes what it is told, in one thread.
struct NotedProgress {
  NotedProgress() {
    options.threads = 1;
    options.progress = [this](double share) { shares.push_back(share); };
  }

  // How much of the work passes without a word.
  double longestSilence() const {
    double longest = 1.0 - shares.back(), before = 0.0;
    for (const double share : shares) longest = std::max(longest, share - std::exchange(before, share));
    return longest;
  }

  AnalysisOptions options;
  std::vector<double> shares;
};

TEST(Progress, OfAnAnalysisGoesOnThroughAllOfItsStages) {
  NotedProgress noted;
  ListedProblem listed = farAway();
  listed.from = ListedFrom::Files;
  analyse(std::move(listed), 0.95, Reading::AsTyped, noted.options);
  ASSERT_FALSE(noted.shares.empty());
  EXPECT_TRUE(std::is_sorted(noted.shares.begin(), noted.shares.end()));
  EXPECT_LE(noted.shares.back(), 1.0);
  EXPECT_LE(noted.longestSilence(), 0.4);
}

TEST(Progress, OfASearchForDegreesGoesOnThroughThePassesForPress) {
  const test::Example example("heat-index");
  NotedProgress noted;
  const DegreeSearcher searcher(problemData(example.model), largestDegrees(example.model), noted.options);
  searcher.pressOfBest(searcher.search());
  ASSERT_FALSE(noted.shares.empty());
  EXPECT_TRUE(std::is_sorted(noted.shares.begin(), noted.shares.end()));
  EXPECT_LE(noted.shares.back(), 1.0);
  EXPECT_LE(noted.longestSilence(), 0.1 + 1e-12);
}

}  // namespace
}  // namespace tavimor
