#include "analysis/recurrence.h"

#include <cmath>

namespace tavimor {

namespace {

// Four sums side by side hide how long an addition takes.
double dotProduct(std::span<const double> a, std::span<const double> b) {
  double sums[4] = {};
  std::size_t n = 0;
  for (; n + 4 <= a.size(); n += 4)
    for (std::size_t lane = 0; lane < 4; ++lane) sums[lane] += a[n + lane] * b[n + lane];
  for (; n < a.size(); ++n) sums[0] += a[n] * b[n];
  return (sums[0] + sums[1]) + (sums[2] + sums[3]);
}

// The power of two next to 1 / value, 1 where that is none.
double powerNear(double value) {
  if (!(value > 0.0) || !std::isfinite(value)) return 1.0;
  return std::ldexp(1.0, static_cast<int>(-std::floor(std::log2(value) + 0.5)));
}

// The squares of the discrete Chebyshev polynomials' norms, each over that of the one before, for values 2 apart:
//   j^2 (n^2 - j^2) / (4 j^2 - 1).
Pair normRatio(double count, double j) {
  return twoProduct(j * j, 1.0) * (twoProduct(count, count) - twoProduct(j, j)) / Pair(4 * j * j - 1);
}

int bitsOf(std::size_t count) {
  int bits = 0;
  while ((std::size_t{1} << bits) < count - 1) ++bits;
  return bits;
}

struct SpacedBasis {
  Recurrence steps;
  std::vector<Pair> squaredNorms;
};

SpacedBasis spacedBasis(std::size_t count, std::size_t terms) {
  const double n = static_cast<double>(count);
  const int bits = count > 1 ? bitsOf(count) : 0;
  SpacedBasis basis{{}, {Pair(n)}};
  Pair ratioBefore;
  double scaleBefore = 0.0;
  for (std::size_t j = 0; j + 1 < terms; ++j) {
    const Pair ratio = scaled(normRatio(n, static_cast<double>(j + 1)), -2 * bits);
    const Pair norm = basis.squaredNorms.back() * ratio;
    const double scale = powerNear(std::sqrt(norm.high / n));
    basis.squaredNorms.push_back(norm * Pair(scale * scale));
    basis.steps.push_back({0.0, scale, ratioBefore * Pair(scale * scaleBefore)});
    ratioBefore = ratio;
    scaleBefore = scale;
  }
  return basis;
}

// One polynomial after the other at the given places.
class Stieltjes {
 public:
  explicit Stieltjes(std::span<const double> coordinates)
      : t_(coordinates), polynomials_{std::vector<double>(coordinates.size(), 1.0)} {}

  RecurrenceStep next() {
    const std::vector<double>& current = polynomials_.back();
    std::vector<double> candidate(t_.size());
    double shift = 0.0;
    for (std::size_t n = 0; n < t_.size(); ++n) shift += t_[n] * current[n] * current[n];
    shift = ratio(shift, dotProduct(current, current));
    for (std::size_t n = 0; n < t_.size(); ++n) candidate[n] = (t_[n] - shift) * current[n];
    const double back = polynomials_.size() > 1 ? share(candidate, polynomials_[polynomials_.size() - 2]) : 0.0;
    for (int round = 0; round < 2; ++round)
      for (const std::vector<double>& earlier : polynomials_) subtract(candidate, earlier);
    const double count = static_cast<double>(t_.size());
    const double scale = powerNear(std::sqrt(dotProduct(candidate, candidate) / count));
    for (double& value : candidate) value *= scale;
    polynomials_.push_back(std::move(candidate));
    return {shift, scale, back * scale};
  }

 private:
  static double ratio(double dividend, double divisor) {
    const double quotient = dividend / divisor;
    return std::isfinite(quotient) ? quotient : 0.0;
  }

  static double share(std::span<const double> of, std::span<const double> in) {
    return ratio(dotProduct(of, in), dotProduct(in, in));
  }

  static void subtract(std::vector<double>& from, const std::vector<double>& direction) {
    const double factor = share(from, direction);
    for (std::size_t n = 0; n < from.size(); ++n) from[n] -= factor * direction[n];
  }

  std::span<const double> t_;
  std::vector<std::vector<double>> polynomials_;
};

}  // namespace

Recurrence recurrenceOfSpaced(std::size_t count, std::size_t terms) { return spacedBasis(count, terms).steps; }

std::vector<Pair> squaredNormsOfSpaced(std::size_t count, std::size_t terms) {
  return spacedBasis(count, terms).squaredNorms;
}

Recurrence recurrenceOf(std::span<const double> coordinates, std::size_t terms) {
  Recurrence steps;
  Stieltjes procedure(coordinates);
  for (std::size_t j = 0; j + 1 < terms; ++j) steps.push_back(procedure.next());
  return steps;
}

}  // namespace tavimor
