#include "analysis/deviation_sums.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

#include "analysis/axis_parts.h"

namespace tavimor {

namespace {

using Matrix = std::vector<double>;  // row by row

Matrix product(const Matrix& a, const Matrix& b, std::size_t columns) {
  const std::size_t inner = b.size() / columns, rows = a.size() / inner;
  Matrix result(rows * columns);
  for (std::size_t row = 0; row < rows; ++row)
    for (std::size_t n = 0; n < inner; ++n)
      for (std::size_t column = 0; column < columns; ++column)
        result[row * columns + column] += a[row * inner + n] * b[n * columns + column];
  return result;
}

// D without its last column, which is 0: T_j' = 2 j (T_{j-1} + T_{j-3} + ..), of which T_0 counts half.
// Source: Mason, Handscomb, Chebyshev Polynomials, 2003, 2.4.
Matrix derivatives(std::size_t last) {
  Matrix d((last + 1) * last);
  for (std::size_t j = 0; j <= last; ++j)
    for (std::size_t k = (j + 1) % 2; k < j; k += 2) d[j * last + k] = static_cast<double>(k == 0 ? j : 2 * j);
  return d;
}

}  // namespace

DeviationSums::DeviationSums(std::size_t terms) : last_(terms - 1), sums_(kWeights * last_ * kChains) {}

void DeviationSums::add(const PairSums& sums, const OppositeDeviations& block, const double* polynomials) {
  double forEven[kWeights * kMostDotted], forOdd[kWeights * kMostDotted];
  const auto fold = [&](const double* frontFactor, const double* backFactor, double* sum, double* difference) {
    sums.foldWeights(block.front, frontFactor, block.back, backFactor, kMostDotted, sum, difference);
  };
  const double *ones = polynomials, *last = polynomials + last_ * kMostDotted;
  double *evenWithLast = forEven + WithLast * kMostDotted, *oddWithLast = forOdd + WithLast * kMostDotted;
  if (last_ % 2 == 1) std::swap(evenWithLast, oddWithLast);
  fold(ones, ones, forEven + Single * kMostDotted, forOdd + Single * kMostDotted);
  fold(last, last, evenWithLast, oddWithLast);
  fold(block.functionInFront, block.functionBehind, forEven + WithFunction * kMostDotted,
       forOdd + WithFunction * kMostDotted);
  const std::size_t evenCount = (last_ + 1) / 2, ofWeight = last_ * kChains;
  sums.doubleDots(forEven, polynomials, 2 * kMostDotted, evenCount, kMostDotted, sums_.data(), ofWeight);
  sums.doubleDots(forOdd, polynomials + kMostDotted, 2 * kMostDotted, last_ / 2, kMostDotted,
                  sums_.data() + evenCount * kChains, ofWeight);
}

void DeviationSums::add(const DeviationSums& part) {
  for (std::size_t n = 0; n < sums_.size(); ++n) sums_[n] += part.sums_[n];
  largest = part.largest <= largest ? largest : part.largest;
}

std::vector<double> DeviationSums::totals(Weight weight) const {
  std::vector<double> sums;
  for (std::size_t j = 0; j < last_; ++j) {
    const auto from =
        sums_.begin() + static_cast<std::ptrdiff_t>((weight * last_ + placeEvenFirst(j, last_)) * kChains);
    sums.push_back(std::accumulate(from, from + kChains, 0.0));
  }
  return sums;
}

DeviationGains::DeviationGains(const DeviationSums& sums)
    : terms_(sums.last_ + 1), largestDeviation_(sums.largest), ofProducts_(terms_ * terms_) {
  const std::size_t m = terms_, last = sums.last_;
  std::vector<double> single = sums.totals(DeviationSums::Single);  // the sums of T_0 .. T_{2 last - 1}
  const std::vector<double> withLast = sums.totals(DeviationSums::WithLast);
  single.push_back(withLast[0]);
  for (std::size_t j = 1; j < last; ++j) single.push_back(2 * withLast[j] - single[last - j]);
  Matrix products(last * m);
  for (std::size_t j = 0; j < last; ++j)
    for (std::size_t k = 0; k < m; ++k) products[j * m + k] = (single[j + k] + single[j < k ? k - j : j - k]) / 2;
  const Matrix d = derivatives(last);
  ofFunction_ = product(d, sums.totals(DeviationSums::WithFunction), 1);
  const Matrix oneSide = product(d, products, m);
  for (std::size_t j = 0; j < m; ++j)
    for (std::size_t k = 0; k < m; ++k) ofProducts_[j * m + k] = oneSide[j * m + k] + oneSide[k * m + j];
}

// With n places an element of B that is summed is off by n |d| roundings at most, any other by three times that; beside
// each stands the product of two norms, n / 4 at least. No polynomial is above 1, nor its derivatives above powers of
// (terms - 1)^2: what the series leaves out comes to 9 share^2.
std::optional<double> DeviationGains::error(std::size_t addends) const {
  const double share = largestDeviation_ * static_cast<double>((terms_ - 1) * (terms_ - 1));
  if (!(share <= kMostShare)) return std::nullopt;
  const double roundings = static_cast<double>(addends + 4 * terms_ + 16) * kUnitRoundoff;
  return 48 * share * roundings + 9 * share * share;
}

}  // namespace tavimor
