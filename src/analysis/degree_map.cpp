#include "analysis/degree_map.h"

#include <algorithm>
#include <cmath>

#include "analysis/predicted_digits.h"
#include "model/grid_indices.h"

namespace tavimor {

namespace {

// The squares of the numbers up to each index, on every axis.
PairTable summedSquares(const PairTable& z) {
  PairTable sums = z;
  for (std::size_t n = 0; n < z.size(); ++n) sums.set(n, z.at(n) * z.at(n));
  for (int k = 0; k < kMaxVariables; ++k) {
    const std::size_t stride = z.stride(k);
    for (std::size_t n = 0; n < z.size(); ++n)
      if (n / stride % z.extent[k] > 0) sums.set(n, sums.at(n) + sums.at(n - stride));
  }
  return sums;
}

// Residuals of the size of the rounding of a value to 15 digits. As many terms as points reach anything.
bool reachesRounding(const FitStatistics& statistics, double squares) {
  constexpr double rounding = 1e-15;
  if (statistics.noFreedom) return false;
  return statistics.residualsAreZero || statistics.rss <= rounding * rounding * squares;
}

bool isBetter(const DegreeCombination& a, const DegreeCombination& b) {
  if (a.statistics.terms != b.statistics.terms) return a.statistics.terms < b.statistics.terms;
  return a.statistics.rss < b.statistics.rss;
}

void recommend(std::vector<DegreeCombination>& all, double squares) {
  DegreeCombination* best = nullptr;
  for (DegreeCombination& one : all)
    if (reachesRounding(one.statistics, squares) && (best == nullptr || isBetter(one, *best))) best = &one;
  if (best == nullptr)
    for (DegreeCombination& one : all)
      if (one.statistics.bic && (best == nullptr || *one.statistics.bic < *best->statistics.bic)) best = &one;
  if (best != nullptr) best->recommended = true;
}

// In the order of terms, and of s among equals, one is beaten unless its s is below all before it.
void markBeaten(std::vector<DegreeCombination>& all) {
  std::vector<DegreeCombination*> order;
  for (DegreeCombination& one : all) order.push_back(&one);
  const auto deviation = [](const DegreeCombination* one) { return one->statistics.s.value_or(INFINITY); };
  std::stable_sort(order.begin(), order.end(), [&](const DegreeCombination* a, const DegreeCombination* b) {
    if (a->statistics.terms != b->statistics.terms) return a->statistics.terms < b->statistics.terms;
    return deviation(a) < deviation(b);
  });
  double least = INFINITY;
  for (DegreeCombination* one : order) {
    one->beaten = !(deviation(one) < least);
    least = std::min(least, deviation(one));
  }
}

}  // namespace

std::vector<DegreeCombination> degreeMap(const ProblemData& data, const Decomposition& decomposition,
                                         const PerVariable<Pair>& centre, const AnalysisOptions& options) {
  const PairTable explained = summedSquares(decomposition.z);
  const DigitPredictor predictor(data, decomposition, centre);
  const double squares = decomposition.sumOfSquares.high;
  const double error = sumError(decomposition.points) + 2 * decomposition.error();
  const auto unscaled = [&](const Pair& sum, std::size_t terms) {
    const double bound = (error + (static_cast<double>(terms) + 8) * kPairError) * squares;
    return Bounded{scaled(sum, 2 * decomposition.exponent), std::ldexp(bound, 2 * decomposition.exponent)};
  };
  const Bounded total = unscaled(decomposition.sumOfSquares - explained.at(0), 1);
  std::vector<DegreeCombination> all;
  PerVariable<Long> last{};
  for (int k = 0; k < kMaxVariables; ++k) last[k] = static_cast<Long>(decomposition.z.extent[k]) - 1;
  forEachIndex(last, [&](const PerVariable<Long>& degrees) {
    goOn(options);
    PerVariable<std::size_t> count{};
    std::size_t terms = 1;
    for (int k = 0; k < kMaxVariables; ++k) terms *= count[k] = static_cast<std::size_t>(degrees[k]) + 1;
    const Pair residual = decomposition.sumOfSquares - explained.at(all.size());
    DegreeCombination one;
    one.degrees = degrees;
    one.statistics = statisticsOfSums(decomposition.points, terms, unscaled(residual, terms), total);
    one.predictedDigits = predictor.worstDigits(count);
    all.push_back(one);
  });
  recommend(all, std::ldexp(squares, 2 * decomposition.exponent));
  markBeaten(all);
  return all;
}

}  // namespace tavimor
