#include "analysis/deviation_sums.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "analysis/chebyshev_basis.h"

namespace tavimor {

namespace {

using Matrix = std::vector<double>;  // row by row, square

Matrix product(const Matrix& a, const Matrix& b, std::size_t columns) {
  const std::size_t inner = b.size() / columns, rows = a.size() / inner;
  Matrix result(rows * columns);
  for (std::size_t row = 0; row < rows; ++row)
    for (std::size_t n = 0; n < inner; ++n)
      for (std::size_t column = 0; column < columns; ++column)
        result[row * columns + column] += a[row * inner + n] * b[n * columns + column];
  return result;
}

Matrix flipped(const Matrix& matrix, std::size_t m) {
  Matrix result(matrix.size());
  for (std::size_t row = 0; row < m; ++row)
    for (std::size_t column = 0; column < m; ++column) result[column * m + row] = matrix[row * m + column];
  return result;
}

Matrix highParts(const PairMatrix& matrix) {
  Matrix result;
  for (const Pair& element : matrix.elements) result.push_back(element.high);
  return result;
}

// D: each derivative as a sum of the polynomials, from the derivative of their recurrence,
//   P_{j+1}' = scale_j (t P_j' + P_j) - back_j P_{j-1}',   t P_k = P_{k+1} / scale_k + back_k / scale_k P_{k-1}.
// Its rounding in pairs grows as that of the polynomials does and is next to nothing beside it: a deviation comes in.
Matrix derivatives(const Recurrence& recurrence, std::size_t m) {
  PairMatrix d(m, m);
  for (std::size_t j = 0; j + 1 < m; ++j)
    for (std::size_t k = 0; k <= j; ++k) {
      Pair ofProduct = k == j ? Pair(1.0) : Pair();
      if (k > 0) ofProduct = ofProduct + d(j, k - 1) / Pair(recurrence[k - 1].scale);
      if (k + 1 < j) ofProduct = ofProduct + d(j, k + 1) * recurrence[k + 1].back / Pair(recurrence[k + 1].scale);
      d(j + 1, k) = ofProduct * Pair(recurrence[j].scale);
      if (j > 0) d(j + 1, k) = d(j + 1, k) - recurrence[j].back * d(j - 1, k);
    }
  return highParts(d);
}

double sumOfChains(const std::vector<double>& sums, std::size_t n) {
  const auto from = sums.begin() + static_cast<std::ptrdiff_t>(n * kChains);
  return std::accumulate(from, from + kChains, 0.0);
}

void addTo(std::vector<double>& sums, const std::vector<double>& others) {
  for (std::size_t n = 0; n < sums.size(); ++n) sums[n] += others[n];
}

}  // namespace

DeviationSums::DeviationSums(std::size_t terms) : terms_(terms), products_(2 * kOrders * terms * kChains) {
  for (std::vector<double>& order : withFunction_) order.resize(terms * kChains);
}

void DeviationSums::add(const PairSums& sums, const OppositeDeviations& block, const double* polynomials) {
  FoldedWeights weights;
  const double* ones = polynomials;
  sums.foldWeights(block.front, ones, block.back, ones, weights);
  sums.neighbourDots(weights, polynomials, terms_, products_.data());
  sums.foldWeights(block.front, block.functionInFront, block.back, block.functionBehind, weights);
  const std::size_t evenCount = (terms_ + 1) / 2;
  sums.weightedDots({ones, weights.firstSum, weights.secondSum}, polynomials, 2 * kMostDotted, evenCount, kMostDotted,
                    withFunction_[0].data(), withFunction_[1].data());
  sums.weightedDots({ones, weights.firstDifference, weights.secondDifference}, polynomials + kMostDotted,
                    2 * kMostDotted, terms_ / 2, kMostDotted, withFunction_[0].data() + evenCount * kChains,
                    withFunction_[1].data() + evenCount * kChains);
}

void DeviationSums::add(const DeviationSums& part) {
  addTo(products_, part.products_);
  for (std::size_t order = 0; order < kOrders; ++order) addTo(withFunction_[order], part.withFunction_[order]);
  largest = part.largest <= largest ? largest : part.largest;
}

DeviationGains::DeviationGains(const DeviationSums& sums) : terms_(sums.terms_), largestDeviation_(sums.largest) {
  const std::size_t m = terms_;
  const auto productsOf = [&](std::size_t order) {
    std::vector<double> single(2 * m);  // the sums of T_0 .. T_{2m-2}
    for (std::size_t j = 0; j < m; ++j) {
      const double withItself = sumOfChains(sums.products_, 2 * kOrders * j + order);
      const double withOneBefore = sumOfChains(sums.products_, 2 * kOrders * j + kOrders + order);
      single[2 * j] = j == 0 ? withItself : 2 * withItself - single[0];
      if (j > 0) single[2 * j - 1] = j == 1 ? withOneBefore : 2 * withOneBefore - single[1];
    }
    Matrix products(m * m);
    for (std::size_t j = 0; j < m; ++j)
      for (std::size_t k = 0; k < m; ++k) products[j * m + k] = (single[j + k] + single[j < k ? k - j : j - k]) / 2;
    return products;
  };
  const auto columnOf = [&](std::size_t order) {
    std::vector<double> elements;
    for (std::size_t j = 0; j < m; ++j)
      elements.push_back(sumOfChains(sums.withFunction_[order], j / 2 + (j % 2 == 0 ? 0 : (m + 1) / 2)));
    return elements;
  };
  const Matrix d = derivatives(chebyshevRecurrence(m), m), dd = product(d, d, m);
  ofFunction_ = product(d, columnOf(0), 1);
  addTo(ofFunction_, product(dd, columnOf(1), 1));
  const Matrix second = productsOf(1);
  Matrix oneSide = product(d, productsOf(0), m);
  addTo(oneSide, product(dd, second, m));
  addTo(oneSide, product(product(d, second, m), flipped(d, m), m));
  ofProducts_ = oneSide;
  addTo(ofProducts_, flipped(oneSide, m));
  for (std::size_t j = 0; j < m; ++j) {
    double row = 0.0;
    for (std::size_t k = 0; k < m; ++k) row += std::fabs(d[j * m + k]);
    ofDerivative_ = std::max(ofDerivative_, row);
  }
}

// With n places an element of B that is summed is off by n |d| roundings at most, any other by three times that; beside
// each stands the product of two norms, n / 4 at least. Both hold for the series too: no polynomial is above 1.
std::optional<double> DeviationGains::error(std::size_t addends) const {
  const double share = largestDeviation_ * ofDerivative_;
  if (!(largestDeviation_ <= kMostDeviation) || !(share <= 0.25)) return std::nullopt;
  const double roundings = static_cast<double>(addends + 4 * terms_ + 16) * kUnitRoundoff;
  return 48 * share * roundings + 48 * share * share * share;
}

}  // namespace tavimor
