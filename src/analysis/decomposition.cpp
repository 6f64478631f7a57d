#include "analysis/decomposition.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "analysis/contraction.h"
#include "analysis/long_axis.h"

namespace tavimor {

namespace {

constexpr double kMostError = 0.01;  // a basis with more is none

bool allFinite(const AxisData& axis) {
  if (!isFinite(axis.lower) || !isFinite(axis.upper) || !isFinite(axis.centre)) return false;
  return axis.equallySpaced() || (std::isfinite(axis.range.least) && std::isfinite(axis.range.most));
}

// What the values alone tell, exactly.
Finding findingOfValues(const ProblemData& data) {
  for (Long k = 0; k <= data.lastVariable; ++k)
    if (!allFinite(data.axis[k])) return {Verdict::NotFinite, Obstacle::ValueNotFinite, k, 0};
  for (Long k = 0; k <= data.lastVariable; ++k) {
    const std::size_t found = differentValues(data.axis[k], data.axis[k].terms);
    if (found < data.axis[k].terms) return {Verdict::NotDetermined, Obstacle::FewDifferentValues, k, found};
  }
  for (Long k = 0; k <= data.lastVariable; ++k)
    if (data.axis[k].terms > kMostTerms) return {Verdict::NotCertified, Obstacle::DegreeTooHigh, k, 0};
  return {};
}

Finding findingOfBases(const Decomposition& result, Long lastVariable) {
  for (Long k = 0; k <= lastVariable; ++k)
    if (!(result.axis[k].error < kMostError)) return {Verdict::NotCertified, Obstacle::ValuesTooUneven, k, 0};
  return {};
}

Decomposition undecomposed(const ProblemData& data, const Finding& finding) {
  Decomposition result;
  result.points = data.points();
  result.finding = finding;
  return result;
}

// The declared axes in the order in which it takes the fewest operations to contract them, one at least. Of equals the
// one whose first axis is the last: more lines lie side by side.
std::vector<int> bestOrder(const ProblemData& data) {
  std::vector<int> axes, best;
  for (int k = 0; k < kMaxVariables; ++k)
    if (data.axis[k].count > 1) axes.push_back(k);
  if (axes.empty()) return {0};
  constexpr double turning = 4.0;  // of neighbours into lanes, beside a column
  double least = INFINITY;
  do {
    double size = static_cast<double>(data.points()), cost = 0.0;
    for (const int k : axes) {
      const AxisData& axis = data.axis[k];
      cost += size * (static_cast<double>(axis.terms) + (k == 0 ? turning : 0.0));
      size *= static_cast<double>(axis.terms) / static_cast<double>(axis.count);
    }
    if (cost <= least) {
      least = cost;
      best = axes;
    }
  } while (std::next_permutation(axes.begin(), axes.end()));
  return best;
}

bool isLong(const ProblemData& data) { return data.axis[0].count >= kLongAxis && data.points() == data.axis[0].count; }

SeenValues decomposeLong(const ProblemData& data, const FunctionValues& function, const AnalysisOptions& options,
                         Decomposition& result) {
  LongAxisSums sums = longAxisSums(data.axis[0], function, options);
  result.axis[0] = std::move(sums.basis);
  for (int k = 1; k < kMaxVariables; ++k) result.axis[k] = axisBasis(data.axis[k], options);
  result.finding = findingOfBases(result, data.lastVariable);
  if (result.finding.verdict != Verdict::Exact) return {};
  result.z = PairTable({sums.y.size(), 1, 1, 1});
  for (std::size_t j = 0; j < sums.y.size(); ++j) result.z.set(j, sums.y[j]);
  result.sumOfSquares = sums.sumOfSquares;
  return sums.function;
}

SeenValues decomposeTable(const ProblemData& data, const FunctionValues& function, const AnalysisOptions& options,
                          Decomposition& result) {
  for (int k = 0; k < kMaxVariables; ++k) result.axis[k] = axisBasis(data.axis[k], options);
  result.finding = findingOfBases(result, data.lastVariable);
  if (result.finding.verdict != Verdict::Exact) return {};
  PerVariable<std::size_t> extent{};
  for (int k = 0; k < kMaxVariables; ++k) extent[k] = data.axis[k].count;
  const std::vector<int> order = bestOrder(data);
  FunctionContraction first = contracted(function, extent, order[0], result.axis[order[0]], options);
  result.z = std::move(first.table);
  for (std::size_t n = 1; n < order.size(); ++n)
    result.z = contracted(result.z, order[n], result.axis[order[n]], options);
  result.sumOfSquares = first.sumOfSquares;
  return first.function;
}

SeenValues decomposeData(const ProblemData& data, const FunctionValues& function, const AnalysisOptions& options,
                         Decomposition& result) {
  const auto decomposeIt = isLong(data) ? decomposeLong : decomposeTable;
  const SeenValues seen = decomposeIt(data, function, options, result);
  result.exponent = function.exponent;
  result.exactData = seen.exact;
  for (Long k = 0; k <= data.lastVariable; ++k) result.exactData = result.exactData && result.axis[k].exactValues;
  return seen;
}

}  // namespace

double Decomposition::error() const {
  double sum = 0.0;
  for (const AxisBasis& basis : axis) sum += basis.error;
  return sum;
}

double Decomposition::normOfFunction() const { return std::sqrt(sumOfSquares.high); }

Decomposition decompose(const ProblemData& data, const AnalysisOptions& options) {
  const PairSums& sums = pairSums(options.instructionSet);
  Decomposition result = undecomposed(data, findingOfValues(data));
  if (result.finding.verdict != Verdict::Exact) return result;
  const Table4& table = *data.function;
  SeenValues seen = decomposeData(data, functionValues(table, data.reading), options, result);
  // The function may not have been read where the values do not serve.
  if (result.finding.verdict != Verdict::Exact) seen.magnitudes = sums.magnitudes(table.data(), table.size());
  if (!seen.magnitudes.allFinite) return undecomposed(data, {Verdict::NotFinite, Obstacle::FunctionNotFinite, 0, 0});
  if (result.finding.verdict != Verdict::Exact) return result;
  const FunctionValues function = functionValues(table, data.reading, seen.magnitudes);
  if (!function.asTheyAre) decomposeData(data, function, options, result);
  for (int k = 0; k < kMaxVariables; ++k)
    if (result.axis[k].terms > 1 || result.axis[k].count > 1)
      result.z = contracted(result.z, k, transposed(result.axis[k].inverse), options);
  return result;
}

Decomposition withTerms(const Decomposition& decomposition, const PerVariable<std::size_t>& terms) {
  Decomposition result = decomposition;
  result.z = leadingBlock(decomposition.z, terms);
  for (int k = 0; k < kMaxVariables; ++k) {
    AxisBasis& basis = result.axis[k];
    basis.terms = terms[k];
    basis.recurrence.resize(terms[k] - 1);
    PairMatrix inverse(terms[k], terms[k]);
    for (std::size_t row = 0; row < terms[k]; ++row)
      for (std::size_t column = 0; column <= row; ++column) inverse(row, column) = basis.inverse(row, column);
    basis.inverse = std::move(inverse);
    if (basis.values.rows == 0) continue;
    PairMatrix values(basis.count, terms[k]);
    for (std::size_t i = 0; i < basis.count; ++i)
      for (std::size_t j = 0; j < terms[k]; ++j) values(i, j) = basis.values(i, j);
    basis.values = std::move(values);
  }
  return result;
}

}  // namespace tavimor
