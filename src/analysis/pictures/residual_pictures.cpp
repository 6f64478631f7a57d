#include "analysis/pictures/residual_pictures.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "analysis/distributions.h"
#include "analysis/pictures/round_numbers.h"

namespace tavimor {

namespace {

std::span<const double> numbersOf(const Table4& table) { return {table.data(), table.size()}; }

// In units of the largest: squares of 1E-300 or 1E300 are beyond a double.
double rootMeanSquareOf(std::span<const double> numbers) {
  double largest = 0.0, sum = 0.0;
  for (const double number : numbers) largest = std::max(largest, std::fabs(number));
  if (largest == 0.0 || !std::isfinite(largest)) return largest;
  for (const double number : numbers) sum += (number / largest) * (number / largest);
  return largest * std::sqrt(sum / static_cast<double>(numbers.size()));
}

std::string whyNot(const ShownFit& fit) {
  if (const std::string reason = noFitText(fit); !reason.empty()) return reason;
  if (fit.residualsAreZero) return "The residuals are 0 as far as can be told: there is nothing to show.";
  const std::span<const double> residuals = numbersOf(fit.residual);
  if (!std::all_of(residuals.begin(), residuals.end(), [](double r) { return std::isfinite(r); }))
    return "A residual is no finite number: there is nothing to show.";
  if (rootMeanSquareOf(residuals) == 0.0) return "All residuals are 0: there is nothing to show.";
  return {};
}

// All ranks at the ends, where the eye looks, and some between.
std::vector<std::size_t> shownRanks(std::size_t count) {
  constexpr std::size_t kEnd = 500, kBetween = 1000;
  std::vector<std::size_t> ranks;
  if (count <= 2 * kEnd + kBetween) {
    ranks.resize(count);
    std::iota(ranks.begin(), ranks.end(), std::size_t{0});
    return ranks;
  }
  for (std::size_t n = 0; n < kEnd; ++n) ranks.push_back(n);
  for (std::size_t n = 0; n < kBetween; ++n) ranks.push_back(kEnd + n * (count - 2 * kEnd) / kBetween);
  for (std::size_t n = count - kEnd; n < count; ++n) ranks.push_back(n);
  return ranks;
}

std::vector<PicturePoint> quantilesOf(std::span<const double> residuals) {
  std::vector<std::size_t> order(residuals.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
    return residuals[a] != residuals[b] ? residuals[a] < residuals[b] : a < b;
  });
  std::vector<PicturePoint> points;
  for (const std::size_t rank : shownRanks(order.size())) {
    const double level = (static_cast<double>(rank) + 0.625) / (static_cast<double>(order.size()) + 0.25);
    points.push_back({normalQuantile(level), residuals[order[rank]], order[rank]});
  }
  return points;
}

std::vector<std::size_t> largestOf(std::span<const double> residuals) {
  std::vector<std::size_t> order(residuals.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  const auto end = order.begin() + static_cast<std::ptrdiff_t>(std::min(kMostListed, order.size()));
  std::partial_sort(order.begin(), end, order.end(), [&](std::size_t a, std::size_t b) {
    const double ofA = std::fabs(residuals[a]), ofB = std::fabs(residuals[b]);
    return ofA != ofB ? ofA > ofB : a < b;
  });
  order.erase(end, order.end());
  return order;
}

}  // namespace

Histogram histogramOf(std::span<const double> numbers, double rootMeanSquare) {
  constexpr std::size_t kFewest = 5, kMost = 40;
  const auto [least, largest] = std::minmax_element(numbers.begin(), numbers.end());
  const auto root = static_cast<std::size_t>(std::sqrt(static_cast<double>(numbers.size())));
  const std::size_t parts = std::clamp(root, kFewest, kMost);
  const double margin = *least == *largest ? std::max(std::fabs(*least), 1e-300) / 2 : 0.0;
  Histogram histogram;
  histogram.lower = *least - margin;
  const double upper = *largest + margin, count = static_cast<double>(numbers.size());
  histogram.width = upper / static_cast<double>(parts) - histogram.lower / static_cast<double>(parts);
  histogram.counts.resize(parts);
  for (const double number : numbers) {
    const double part = number / histogram.width - histogram.lower / histogram.width;
    ++histogram.counts[std::min(static_cast<std::size_t>(part), parts - 1)];
  }
  for (std::size_t n = 0; n < parts; ++n) {
    const double from = histogram.lower + static_cast<double>(n) * histogram.width;
    histogram.normal.push_back(count * (normalProbability((from + histogram.width) / rootMeanSquare) -
                                        normalProbability(from / rootMeanSquare)));
  }
  return histogram;
}

ResidualPictures residualPictures(const ShownFit& fit) {
  ResidualPictures pictures;
  pictures.notShown = whyNot(fit);
  if (!pictures.notShown.empty()) return pictures;
  const Problem& problem = fit.problem();
  const std::span<const double> residuals = numbersOf(fit.residual), given = numbersOf(problem.F);
  const auto residual = [&](std::size_t n) { return residuals[n]; };
  pictures.rootMeanSquare = rootMeanSquareOf(residuals);
  pictures.againstFitted = thinnedPoints(
      residuals.size(), [&](std::size_t n) { return given[n] - residuals[n]; }, residual);
  for (Long k = 0; k <= problem.LastVar; ++k) {
    const std::size_t stride = problem.F.stride(k), extent = problem.F.extent(k);
    const std::span<const double> values = gridValues(problem, k);
    pictures.againstVariable[k] = thinnedPoints(
        residuals.size(), [&](std::size_t n) { return values[n / stride % extent]; }, residual);
  }
  pictures.histogram = histogramOf(residuals, pictures.rootMeanSquare);
  pictures.quantiles = quantilesOf(residuals);
  pictures.largest = largestOf(residuals);
  return pictures;
}

std::string residualText(const ShownFit& fit, const ResidualPictures& pictures) {
  if (!pictures.notShown.empty()) return pictures.notShown;
  const Table4& residual = fit.residual;
  const std::size_t largest = pictures.largest.front();
  return "The residuals, given less fitted values, of " + std::to_string(residual.size()) +
         " points: root of the mean square " + shortNumber(pictures.rootMeanSquare) + ", the largest " +
         shortNumber(residual.data()[largest]) + " at " +
         gridPointText(fit.problem(), gridIndexAt(residual.last(), largest)) +
         ". Against the fitted value, against a variable, as a histogram and against normal quantiles.";
}

}  // namespace tavimor
