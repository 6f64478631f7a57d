#include "formats/formulas/rounded_coefficients.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "engine/polynomial.h"
#include "model/grid_indices.h"
#include "model/value_lists.h"

namespace tavimor {

namespace {

constexpr int kMostDigits = 17;  // bring back every double
constexpr double kNextShare = 0.75;

double roundedTo(double value, int digits) {
  std::array<char, 40> text{};
  const auto end =
      std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::scientific, digits - 1);
  double rounded = 0.0;
  std::from_chars(text.data(), end.ptr, rounded);
  return rounded;
}

// What a change contributes at most. No change costs nothing, even where the powers overflow.
double cost(double change, double mostOfTerm) { return change == 0.0 ? 0.0 : std::abs(change) * mostOfTerm; }

double roundedWithin(double value, double mostOfTerm, double share) {
  if (cost(value, mostOfTerm) <= share) return 0.0;
  for (int digits = 1; digits < kMostDigits; ++digits) {
    const double rounded = roundedTo(value, digits);
    if (cost(rounded - value, mostOfTerm) <= share) return rounded;
  }
  return value;
}

// The largest magnitude that the powers of each term reach in the box, in the table's order.
Table4 mostOfTerms(const Formula& formula) {
  Table4 most;
  most.redim(formula.Coef.last());
  forEachIndex(most.last(), [&](const PerVariable<Long>& j) {
    double product = 1.0;
    for (Long k = 0; k <= formula.last(); ++k) {
      const auto& [name, lower, upper, centre] = formula.variables[k];
      product *= std::pow(std::max(std::abs(lower - centre), std::abs(upper - centre)), j[k]);
    }
    most(j) = product;
  });
  return most;
}

struct Attempt {
  Table4 Coef;
  double bound = 0.0;
  std::size_t dropped = 0;
};

Attempt attempt(const Table4& Coef, const Table4& most, double share) {
  Attempt result{Coef, 0.0, 0};
  for (std::size_t n = 0; n < Coef.size(); ++n) {
    double& rounded = result.Coef.data()[n];
    rounded = roundedWithin(Coef.data()[n], most.data()[n], share);
    result.bound += cost(rounded - Coef.data()[n], most.data()[n]);
    if (rounded == 0.0 && Coef.data()[n] != 0.0) ++result.dropped;
  }
  return result;
}

double largestOnGrid(const Table4& exact, const Table4& rounded, const Problem& problem) {
  Table4 change = exact;
  for (std::size_t n = 0; n < change.size(); ++n) change.data()[n] = rounded.data()[n] - exact.data()[n];
  double largest = 0.0;
  forEachIndex(problem.F.last(), [&](const PerVariable<Long>& i) {
    PerVariable<double> point{};
    for (Long k = 0; k <= problem.LastVar; ++k) point[k] = valueOf(problem, k, i[k]);
    largest = std::max(largest, std::abs(valueAt(change, {}, offsetsFrom(problem.Centre, point))));
  });
  return largest;
}

PerVariable<Long> highestPowers(const Table4& Coef) {
  PerVariable<Long> highest{};
  forEachIndex(Coef.last(), [&](const PerVariable<Long>& j) {
    if (Coef(j) == 0.0) return;
    for (int k = 0; k < kMaxVariables; ++k) highest[k] = std::max(highest[k], j[k]);
  });
  return highest;
}

}  // namespace

void roundWithin(Formula& formula, const Problem& problem, double within) {
  const Table4 most = mostOfTerms(formula);
  Attempt best = attempt(formula.Coef, most, within);
  for (double share = kNextShare * within; best.bound > within; share *= kNextShare)
    best = attempt(formula.Coef, most, share);
  formula.rounded = RoundedBy{within, best.bound, largestOnGrid(formula.Coef, best.Coef, problem), best.dropped};
  formula.Coef = std::move(best.Coef);
  formula.Coef.resizeKeeping(highestPowers(formula.Coef));
}

}  // namespace tavimor
