#include "analysis/precise_fit.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "analysis/contraction.h"
#include "model/grid_indices.h"

namespace tavimor {

namespace {

PerVariable<PowerTransform> transformsTo(const Decomposition& decomposition, const PerVariable<Pair>& centre) {
  PerVariable<PowerTransform> transform;
  for (int k = 0; k < kMaxVariables; ++k) transform[k] = powerTransform(decomposition.axis[k], centre[k]);
  return transform;
}

PairTable coefficientTable(const Decomposition& decomposition, const PerVariable<PowerTransform>& transform,
                           const AnalysisOptions& options) {
  PairTable table = decomposition.z;
  for (int k = 0; k < kMaxVariables; ++k)
    if (decomposition.axis[k].count > 1) table = contracted(table, k, transposed(transform[k].matrix), options);
  return table;
}

PreciseCoefficient coefficientAt(const PerVariable<Long>& power, const Pair& value, const Decomposition& decomposition,
                                 const PerVariable<PowerTransform>& transform) {
  double spread = 1.0, error = decomposition.error();
  int exponent = 0;
  for (int k = 0; k < kMaxVariables; ++k) {
    spread *= transform[k].norm[power[k]];
    error += transform[k].error[power[k]];
    exponent += transform[k].exponent * power[k];
  }
  PreciseCoefficient coefficient;
  coefficient.solution.value = scaled(value, exponent + decomposition.exponent);
  const double reach = std::ldexp(decomposition.normOfFunction() * spread, exponent + decomposition.exponent);
  coefficient.solution.bound = reach * error + std::numeric_limits<double>::denorm_min();
  coefficient.spread = std::ldexp(spread, exponent);
  coefficient.rounding = decomposition.exactData ? 0.0 : reach * kUnitRoundoff;
  return coefficient;
}

void addSums(const Decomposition& decomposition, PreciseFit& fit) {
  const int exponent = decomposition.exponent;
  const double squares = decomposition.sumOfSquares.high;
  const double points = static_cast<double>(decomposition.points);
  Pair explained, explainedBesideMean;
  for (std::size_t n = decomposition.z.size(); n-- > 0;) {
    explained = explained + decomposition.z.at(n) * decomposition.z.at(n);
    if (n == 1) explainedBesideMean = explained;
  }
  if (decomposition.z.size() == 1) explainedBesideMean = {};
  const double relative = sumError(decomposition.points) + 2 * decomposition.error() +
                          (static_cast<double>(decomposition.z.size()) + 8) * kPairError;
  const Pair residual = decomposition.sumOfSquares - explained;
  fit.residualSum = {scaled(residual, 2 * exponent), std::ldexp(relative * squares, 2 * exponent)};
  const Pair mean = decomposition.z.at(0);
  fit.totalSum = {scaled(residual + explainedBesideMean, 2 * exponent), fit.residualSum.bound};
  // The first function is constant: 1 / sqrt(points).
  fit.mean = {scaled(mean / squareRoot(Pair(points)), exponent),
              std::ldexp((decomposition.error() + 4 * kPairError) * std::sqrt(squares / points), exponent)};
}

bool allFinite(const PreciseFit& fit) {
  return std::all_of(fit.coefficients.begin(), fit.coefficients.end(), [](const PreciseCoefficient& one) {
    return isFinite(one.solution.value) && std::isfinite(one.solution.bound) && std::isfinite(one.spread);
  });
}

}  // namespace

bool PreciseCoefficient::isNoise() const {
  return std::fabs(solution.value.high) <= std::max(rounding, solution.bound);
}

PreciseFit preciseFit(const Decomposition& decomposition, const PerVariable<Pair>& centre,
                      const AnalysisOptions& options) {
  PreciseFit fit;
  fit.finding = decomposition.finding;
  fit.points = decomposition.points;
  if (fit.finding.verdict != Verdict::Exact) return fit;
  fit.terms = decomposition.z.extent;
  const PerVariable<PowerTransform> transform = transformsTo(decomposition, centre);
  const PairTable table = coefficientTable(decomposition, transform, options);
  PerVariable<Long> last{};
  for (int k = 0; k < kMaxVariables; ++k) last[k] = static_cast<Long>(fit.terms[k]) - 1;
  forEachIndex(last, [&](const PerVariable<Long>& power) {
    fit.coefficients.push_back(coefficientAt(power, table.at(fit.coefficients.size()), decomposition, transform));
  });
  addSums(decomposition, fit);
  if (!allFinite(fit)) fit.finding = {Verdict::NotCertified, Obstacle::CoefficientsTooLarge, 0, 0};
  return fit;
}

PerVariable<Pair> centresOf(const ProblemData& data) {
  PerVariable<Pair> centre;
  for (int k = 0; k < kMaxVariables; ++k) centre[k] = data.axis[k].centre;
  return centre;
}

}  // namespace tavimor
