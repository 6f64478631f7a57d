#include "analysis/residual_pass.h"

#include <algorithm>
#include <cmath>

#include "analysis/contraction.h"
#include "analysis/long_axis.h"
#include "analysis/orthonormal_values.h"

namespace tavimor {

namespace {

// sums = the table's columns, one value of `matrix` column after the other; for any number of rows.
void contractAll(const PairSums& sums, ConstPairs table, std::size_t rows, std::size_t lanes, const PairMatrix& matrix,
                 PairList& result) {
  std::fill(result.high.begin(), result.high.end(), 0.0);
  std::fill(result.low.begin(), result.low.end(), 0.0);
  for (std::size_t row = 0; row < rows; row += kBlock)
    sums.contract(table + row * lanes, std::min(kBlock, rows - row), lanes, &matrix.elements[row * matrix.columns],
                  matrix.columns, matrix.columns, result);
}

void visitLongAxis(const ProblemData& data, const Decomposition& decomposition, const AnalysisOptions& options,
                   const VisitResidual& visit) {
  const PairSums& sums = pairSums(options.instructionSet);
  const FunctionValues function = functionValues(*data.function, data.reading, sums);
  const AxisBasis& basis = decomposition.axis[0];
  const PairMatrix toOrthonormal = transposed(basis.inverse);
  PairList orthonormal(kMostDotted * basis.terms), values(kMostDotted);
  forEachBlock(data.axis[0], basis, sums, [&](std::size_t first, std::size_t count, ConstPairs polynomials) {
    goOn(options);
    contractAll(sums, polynomials, basis.terms, kMostDotted, toOrthonormal, orthonormal);
    std::copy_n(function.values + first, count, values.high.begin());
    finishBlock(function, sums, values, count);
    for (std::size_t i = 0; i < count; ++i) {
      Pair residual(values.high[i], values.low[i]), leverage;
      for (std::size_t j = 0; j < basis.terms; ++j) {
        const Pair one(orthonormal.high[j * kMostDotted + i], orthonormal.low[j * kMostDotted + i]);
        residual = residual - one * decomposition.z.at(j);
        leverage = leverage + one * one;
      }
      visit(residual, leverage, {static_cast<Long>(first + i), 0, 0, 0});
    }
  });
}

// The axis whose expansion makes a table the most larger is expanded last, line by line.
int lastExpanded(const ProblemData& data) {
  int last = 0;
  const auto growth = [&](int k) {
    return static_cast<double>(data.axis[k].count) / static_cast<double>(data.axis[k].terms);
  };
  for (int k = 1; k < kMaxVariables; ++k)
    if (growth(k) > growth(last)) last = k;
  return last;
}

void visitTable(const ProblemData& data, const Decomposition& decomposition, const AnalysisOptions& options,
                const VisitResidual& visit) {
  const PairSums& sums = pairSums(options.instructionSet);
  const FunctionValues function = functionValues(*data.function, data.reading, sums);
  const int last = lastExpanded(data);
  PairTable table = decomposition.z;
  PerVariable<PairMatrix> orthonormal;
  PerVariable<std::vector<Pair>> leverage;
  for (int k = 0; k < kMaxVariables; ++k) {
    orthonormal[k] = orthonormalValues(decomposition.axis[k]);
    leverage[k] = axisLeverages(orthonormal[k]);
    if (k != last && data.axis[k].count > 1) table = contracted(table, k, transposed(orthonormal[k]), options);
  }
  const std::size_t inner = table.stride(last), terms = data.axis[last].terms, count = data.axis[last].count;
  const PairMatrix expansion = transposed(orthonormal[last]);
  PairList line(terms * kChains), estimates(count * kChains), values(count);
  for (std::size_t n = 0; n < table.size() / terms; ++n) {
    goOn(options);
    const std::size_t outer = n / inner;
    PerVariable<Long> at{};
    Pair ofOthers = 1.0;
    for (std::size_t k = 0, rest = n; k < kMaxVariables; ++k) {
      if (static_cast<int>(k) == last) continue;
      at[k] = static_cast<Long>(rest % data.axis[k].count);
      rest /= data.axis[k].count;
      ofOthers = ofOthers * leverage[k][at[k]];
    }
    for (std::size_t j = 0; j < terms; ++j) {
      const Pair value = table.at((outer * terms + j) * inner + n % inner);
      line.high[j * kChains] = value.high;
      line.low[j * kChains] = value.low;
    }
    contractAll(sums, Pairs(line), terms, kChains, expansion, estimates);
    for (std::size_t i = 0; i < count; ++i) values.high[i] = function.values[(outer * count + i) * inner + n % inner];
    finishBlock(function, sums, values, count);
    for (std::size_t i = 0; i < count; ++i) {
      at[last] = static_cast<Long>(i);
      const Pair estimate(estimates.high[i * kChains], estimates.low[i * kChains]);
      visit(Pair(values.high[i], values.low[i]) - estimate, ofOthers * leverage[last][i], at);
    }
  }
}

}  // namespace

void forEachResidual(const ProblemData& data, const Decomposition& decomposition, const AnalysisOptions& options,
                     const VisitResidual& visit) {
  const bool streamed = decomposition.axis[0].values.rows == 0;
  streamed ? visitLongAxis(data, decomposition, options, visit) : visitTable(data, decomposition, options, visit);
}

Table4 residualTable(const ProblemData& data, const Decomposition& decomposition, const AnalysisOptions& options) {
  PerVariable<Long> last{};
  for (int k = 0; k < kMaxVariables; ++k) last[k] = static_cast<Long>(data.axis[k].count) - 1;
  Table4 table;
  table.redim(last);
  forEachResidual(data, decomposition, options, [&](const Pair& residual, const Pair&, const PerVariable<Long>& at) {
    table(at) = std::ldexp(residual.high, decomposition.exponent);
  });
  return table;
}

}  // namespace tavimor
