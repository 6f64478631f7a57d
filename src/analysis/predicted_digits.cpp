#include "analysis/predicted_digits.h"

#include <algorithm>
#include <cmath>

#include "analysis/right_digits.h"

namespace tavimor {

namespace {

constexpr std::size_t kMostSampled = 4096;

double growthOf(std::size_t count) { return std::max(1.0, std::sqrt(static_cast<double>(count)) / 4); }

// The sums of |t - origin|^b over the values of an axis, over a sample of a long one.
std::vector<double> powerSums(const AxisData& axis, const AxisBasis& basis, double origin) {
  const PairSums& sums = pairSums(InstructionSet::Plain);
  const std::size_t count = std::min(axis.count, kMostSampled);
  const double weight = static_cast<double>(axis.count) / static_cast<double>(count);
  std::vector<double> result(2 * basis.terms - 1);
  PairList t(kChains);
  for (std::size_t n = 0; n < count; ++n) {
    const std::size_t i = count == axis.count ? n : n * (axis.count - 1) / (count - 1);
    coordinates(axis, basis.frame, sums, i, 1, t);
    double power = weight;
    for (double& sum : result) {
      sum += power;
      power *= std::fabs(t.high[0] - origin);
    }
  }
  return result;
}

// A table of doubles, the first index fastest, with axis k replaced by sums of rows of a matrix.
template <class Element>
std::vector<double> along(const std::vector<double>& table, const PerVariable<std::size_t>& extent, int k,
                          Element element) {
  std::size_t inner = 1;
  for (int axis = 0; axis < k; ++axis) inner *= extent[axis];
  const std::size_t m = extent[k];
  std::vector<double> result(table.size());
  for (std::size_t first = 0; first < table.size(); first += inner * m)
    for (std::size_t a = 0; a < m; ++a)
      for (std::size_t c = 0; c < m; ++c) {
        const double factor = element(a, c);
        for (std::size_t n = 0; n < inner; ++n) result[first + a * inner + n] += factor * table[first + c * inner + n];
      }
  return result;
}

}  // namespace

DigitPredictor::DigitPredictor(const ProblemData& data, const Decomposition& decomposition,
                               const PerVariable<Pair>& centre)
    : decomposition_(decomposition) {
  for (int k = 0; k < kMaxVariables; ++k) {
    const AxisBasis& basis = decomposition.axis[k];
    parts_[k] = {powerSums(data.axis[k], basis, coordinateOf(basis.frame, centre[k]).high),
                 powerTransform(basis, centre[k], PowerUnit::Coordinate).matrix, growthOf(basis.count)};
    for (std::size_t terms = 1; terms <= basis.terms; ++terms) errors_[k].push_back(errorsOf(k, terms));
  }
}

DigitPredictor::AxisErrors DigitPredictor::errorsOf(int k, std::size_t terms) const {
  const AxisPart& part = parts_[k];
  const auto v = [&](std::size_t a, std::size_t j) { return part.matrix(a, j).high; };
  AxisErrors errors{std::vector<double>(terms), std::vector<double>(terms), std::vector<double>(terms * terms)};
  std::vector<double> inverse(terms);
  for (std::size_t a = 0; a < terms; ++a) {
    for (std::size_t b = 0; b < terms; ++b) {
      inverse[b] = 0.0;
      for (std::size_t j = std::max(a, b); j < terms; ++j) inverse[b] += v(a, j) * v(b, j);
    }
    errors.norm[a] = std::sqrt(std::max(0.0, inverse[a]));
    for (std::size_t b = 0; b < terms; ++b) {
      const double one = inverse[b] * part.powerSums[b];
      errors.ofSums[a] += one * one;
      for (std::size_t c = 0; c < terms; ++c) {
        const double other = inverse[b] * part.powerSums[b + c];
        errors.ofElimination[a * terms + c] += other * other;
      }
    }
    errors.ofSums[a] = std::sqrt(errors.ofSums[a]);
  }
  return errors;
}

std::vector<double> DigitPredictor::coefficients(const PerVariable<std::size_t>& terms) const {
  const PairTable block = leadingBlock(decomposition_.z, terms);
  std::vector<double> table = block.high;
  for (int k = 0; k < kMaxVariables; ++k)
    table = along(table, terms, k, [&](std::size_t a, std::size_t j) { return parts_[k].matrix(a, j).high; });
  return table;
}

double DigitPredictor::worstDigits(const PerVariable<std::size_t>& terms) const {
  const double points = static_cast<double>(decomposition_.points);
  const double norm = decomposition_.normOfFunction();
  const double ofFunction = growthOf(decomposition_.points) * norm / std::sqrt(points);
  const std::vector<double> solution = coefficients(terms);
  std::vector<double> squares(solution.size()), errorSquares(solution.size());
  for (std::size_t n = 0; n < squares.size(); ++n) squares[n] = solution[n] * solution[n];
  for (int k = 0; k < kMaxVariables; ++k) {
    const AxisErrors& errors = errors_[k][terms[k] - 1];
    const double growth = parts_[k].growth * parts_[k].growth;
    const std::vector<double> share = along(squares, terms, k, [&](std::size_t a, std::size_t c) {
      return growth * errors.ofElimination[a * terms[k] + c];
    });
    for (std::size_t n = 0; n < share.size(); ++n) errorSquares[n] += share[n];
  }
  double worst = kMostDigits;
  for (std::size_t n = 0; n < solution.size(); ++n) {
    double ofSums = ofFunction, reach = norm;
    std::size_t rest = n;
    for (int k = 0; k < kMaxVariables; ++k) {
      ofSums *= errors_[k][terms[k] - 1].ofSums[rest % terms[k]];
      reach *= errors_[k][terms[k] - 1].norm[rest % terms[k]];
      rest /= terms[k];
    }
    const double size = std::fabs(solution[n]);
    if (size <= reach * kUnitRoundoff) continue;
    const double error = kUnitRoundoff * std::sqrt(ofSums * ofSums + errorSquares[n]);
    const double digits = -std::log10(error / size);
    worst = std::isfinite(digits) ? std::min(worst, digits) : 0.0;
  }
  return std::max(0.0, worst);
}

}  // namespace tavimor
