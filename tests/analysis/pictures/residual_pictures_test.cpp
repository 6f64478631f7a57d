#include "analysis/pictures/residual_pictures.h"

#include <numeric>

#include "analysis/pictures/pictured_test.h"

namespace tavimor {
namespace {

TEST(ResidualPictures, AreOfTheResidualsOfTheExactSolution) {
  const Dimension model = roughProblem(2);
  const auto fit = pictured(model);
  const ResidualPictures pictures = residualPictures(*fit);
  ASSERT_THAT(pictures.againstFitted, SizeIs(81));
  for (const PicturePoint& point : pictures.againstFitted) {
    const PerVariable<Long> at = gridIndexAt(model.F.last(), point.number);
    const double estimate = estimateAt(fit->analysis->opinion.decomposition,
                                       {typedValue(model.X0[at[0]]), typedValue(model.X1[at[1]]), 0.0, 0.0})
                                .value.rounded();
    EXPECT_NEAR(point.x, estimate, 1e-12);
    EXPECT_NEAR(point.y, model.F(at) - estimate, 1e-12);
  }
  for (Long k = 0; k < 2; ++k)
    for (const PicturePoint& point : pictures.againstVariable[k])
      EXPECT_EQ(point.x, gridValues(model, k)[gridIndexAt(model.F.last(), point.number)[k]]);
}

TEST(ResidualPictures, TheLargestComeFirstAndTheFirstIsTheOneOfTheStatistics) {
  const auto fit = pictured(roughProblem(3));
  const ResidualPictures pictures = residualPictures(*fit);
  ASSERT_THAT(pictures.largest, SizeIs(kMostListed));
  for (std::size_t n = 1; n < pictures.largest.size(); ++n)
    EXPECT_GE(std::fabs(fit->residual.data()[pictures.largest[n - 1]]),
              std::fabs(fit->residual.data()[pictures.largest[n]]));
  EXPECT_EQ(fit->residual.data()[pictures.largest[0]], fit->analysis->residuals.largest);
  EXPECT_NEAR(pictures.rootMeanSquare, *fit->analysis->statistics.rms, 1e-12);
}

TEST(ResidualPictures, QuantilesAscendAndTheMiddleOneIsThatOfZero) {
  const ResidualPictures pictures = residualPictures(*pictured(roughProblem(2)));
  ASSERT_THAT(pictures.quantiles, SizeIs(81));
  for (std::size_t n = 1; n < 81; ++n) {
    EXPECT_GT(pictures.quantiles[n].x, pictures.quantiles[n - 1].x);
    EXPECT_GE(pictures.quantiles[n].y, pictures.quantiles[n - 1].y);
  }
  EXPECT_NEAR(pictures.quantiles[40].x, 0.0, 1e-15);
  EXPECT_NEAR(pictures.quantiles[0].x, -2.42, 0.02);  // the table of Blom's scores for 81
}

TEST(ResidualPictures, OfManyPointsShowBothEndsOfTheQuantilesWhole) {
  const ResidualPictures pictures = residualPictures(*pictured(roughProblem(2, 101)));
  ASSERT_THAT(pictures.quantiles, SizeIs(2000));
  EXPECT_EQ(std::fabs(pictures.quantiles.back().y) > std::fabs(pictures.quantiles.front().y)
                ? pictures.quantiles.back().number
                : pictures.quantiles.front().number,
            pictures.largest[0]);
}

TEST(Histogram, CountsEachNumberOnce) {
  const std::vector<double> numbers{-1.0, -0.5, -0.5, 0.0, 0.1, 0.9, 1.0};
  const Histogram histogram = histogramOf(numbers, 0.7);
  ASSERT_THAT(histogram.counts, SizeIs(5));
  std::vector<std::size_t> plain(5);
  for (const double number : numbers)
    for (std::size_t n = 0; n < 5; ++n) {
      const double from = -1.0 + 0.4 * static_cast<double>(n);
      if (number >= from && (number < from + 0.4 || n == 4)) ++plain[n];
    }
  EXPECT_EQ(histogram.counts, plain);
  EXPECT_EQ(std::accumulate(plain.begin(), plain.end(), std::size_t{0}), numbers.size());
}

TEST(Histogram, OfANormalSampleFollowsTheNormalCounts) {
  std::vector<double> numbers;
  for (const PicturePoint& point : residualPictures(*pictured(roughProblem(2, 31))).quantiles)
    numbers.push_back(point.x);
  const double deviation = std::sqrt(std::inner_product(numbers.begin(), numbers.end(), numbers.begin(), 0.0) /
                                     static_cast<double>(numbers.size()));
  const Histogram histogram = histogramOf(numbers, deviation);
  for (std::size_t n = 0; n < histogram.counts.size(); ++n)
    EXPECT_NEAR(static_cast<double>(histogram.counts[n]), histogram.normal[n], 3.0) << n;
}

TEST(Histogram, OfEqualNumbersIsOneColumn) {
  for (const double value : {0.5, -1e300, 1e-300}) {
    const Histogram histogram = histogramOf(std::vector<double>(3, value), std::fabs(value));
    EXPECT_EQ(histogram.counts, (std::vector<std::size_t>{0, 0, 3, 0, 0})) << value;
  }
}

TEST(ResidualPictures, SayInWordsWhichIsTheLargest) {
  const auto fit = pictured(roughProblem(2));
  const std::string text = residualText(*fit, residualPictures(*fit));
  EXPECT_THAT(text, HasSubstr("of 81 points"));
  EXPECT_THAT(text, HasSubstr(gridPointText(fit->problem(), fit->analysis->residuals.largestAt)));
}

}  // namespace
}  // namespace tavimor
