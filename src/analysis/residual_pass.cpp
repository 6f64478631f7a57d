#include "analysis/residual_pass.h"

#include <algorithm>
#include <cmath>

#include "analysis/contraction.h"
#include "analysis/long_axis.h"
#include "analysis/orthonormal_values.h"

namespace tavimor {

namespace {

FunctionValues functionOf(const ProblemData& data, const PairSums& sums) {
  const Table4& table = *data.function;
  return functionValues(table, data.reading, sums.magnitudes(table.data(), table.size()));
}

// sums = the table's columns, one value of `matrix` column after the other; for any number of rows.
void contractAll(const PairSums& sums, ConstPairs table, std::size_t rows, std::size_t lanes, const PairMatrix& matrix,
                 PairList& result) {
  std::fill(result.high.begin(), result.high.end(), 0.0);
  std::fill(result.low.begin(), result.low.end(), 0.0);
  for (std::size_t row = 0; row < rows; row += kBlock)
    sums.contract(table + row * lanes, std::min(kBlock, rows - row), lanes, &matrix.elements[row * matrix.columns],
                  matrix.columns, matrix.columns, result);
}

// The sum of the squares of the orthonormal polynomials at place i of a block. Doubles do where little of 1 is taken by
// it: pairs are for what is left of 1.
Pair leverageAt(const PairList& orthonormal, std::size_t terms, std::size_t i) {
  double rough = 0.0;
  for (std::size_t j = 0; j < terms; ++j) {
    const double one = orthonormal.high[j * kMostDotted + i];
    rough += one * one;
  }
  if (rough < 0.5) return rough;
  Pair leverage;
  for (std::size_t j = 0; j < terms; ++j) {
    const Pair one(orthonormal.high[j * kMostDotted + i], orthonormal.low[j * kMostDotted + i]);
    leverage = leverage + one * one;
  }
  return leverage;
}

void visitLongAxis(const ProblemData& data, const Decomposition& decomposition, const AnalysisOptions& options,
                   const VisitResidual& visit) {
  const PairSums& sums = pairSums(options.instructionSet);
  const FunctionValues function = functionOf(data, sums);
  const AxisBasis& basis = decomposition.axis[0];
  const PairMatrix toOrthonormal = transposed(basis.inverse);
  PairMatrix solution(basis.terms, 1);
  for (std::size_t j = 0; j < basis.terms; ++j) solution(j, 0) = decomposition.z.at(j);
  PairList orthonormal(kMostDotted * basis.terms), estimates(kMostDotted), room(kMostDotted);
  forEachBlock(data.axis[0], basis, sums, [&](std::size_t first, std::size_t count, ConstPairs polynomials) {
    goOn(options);
    if (options.progress) options.progress(static_cast<double>(first) / static_cast<double>(data.axis[0].count));
    contractAll(sums, polynomials, basis.terms, kMostDotted, toOrthonormal, orthonormal);
    contractAll(sums, Pairs(orthonormal), basis.terms, kMostDotted, solution, estimates);
    const ConstPairs values = readValues(function, sums, function.values + first, count, room).pairs;
    for (std::size_t i = 0; i < count; ++i) {
      const Pair residual = Pair(values.high[i], values.low[i]) - Pair(estimates.high[i], estimates.low[i]);
      visit(residual, leverageAt(orthonormal, basis.terms, i), {static_cast<Long>(first + i), 0, 0, 0});
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

// The estimates along all axes but one, which is expanded line by line.
struct Expansion {
  int last = 0;
  PairTable table;
  PairMatrix ofLast;  // a row per term of the last axis, a column per value
  PerVariable<std::vector<Pair>> leverage;

  std::size_t terms() const { return ofLast.rows; }
  std::size_t count() const { return ofLast.columns; }
  std::size_t lines() const { return table.size() / terms(); }
};

Expansion expandedButOne(const ProblemData& data, const Decomposition& decomposition, const AnalysisOptions& options) {
  Expansion expansion{lastExpanded(data), decomposition.z, {}, {}};
  for (int k = 0; k < kMaxVariables; ++k) {
    const PairMatrix orthonormal = orthonormalValues(decomposition.axis[k]);
    expansion.leverage[k] = axisLeverages(orthonormal);
    if (k == expansion.last)
      expansion.ofLast = transposed(orthonormal);
    else if (data.axis[k].count > 1)
      expansion.table = contracted(expansion.table, k, transposed(orthonormal), options);
  }
  return expansion;
}

// One line along the last axis: the estimates and the values of its points.
class Line {
 public:
  Line(const ProblemData& data, const Expansion& expansion, const PairSums& sums)
      : data_(data),
        expansion_(expansion),
        sums_(sums),
        function_(functionOf(data, sums)),
        stride_(expansion.table.stride(expansion.last)) {}

  void visitPoints(std::size_t line, const VisitResidual& visit) {
    estimate(line);
    read(line);
    PerVariable<Long> at{};
    const Pair ofOthers = findPlace(line, at);
    for (std::size_t i = 0; i < expansion_.count(); ++i) {
      at[expansion_.last] = static_cast<Long>(i);
      const Pair estimate(estimates_.high[i * kChains], estimates_.low[i * kChains]);
      visit(Pair(values_.high[i], values_.low[i]) - estimate, ofOthers * expansion_.leverage[expansion_.last][i], at);
    }
  }

 private:
  void estimate(std::size_t line) {
    const std::size_t first = line / stride_ * expansion_.terms() * stride_ + line % stride_;
    for (std::size_t j = 0; j < expansion_.terms(); ++j) {
      const Pair value = expansion_.table.at(first + j * stride_);
      coefficients_.high[j * kChains] = value.high;
      coefficients_.low[j * kChains] = value.low;
    }
    contractAll(sums_, Pairs(coefficients_), expansion_.terms(), kChains, expansion_.ofLast, estimates_);
  }

  void read(std::size_t line) {
    const std::size_t first = line / stride_ * expansion_.count() * stride_ + line % stride_;
    for (std::size_t i = 0; i < expansion_.count(); ++i) values_.high[i] = function_.values[first + i * stride_];
    readValues(function_, sums_, values_.high.data(), expansion_.count(), values_);
  }

  // The indices of the line, and the product of the leverages there.
  Pair findPlace(std::size_t line, PerVariable<Long>& at) const {
    Pair product = 1.0;
    for (int k = 0; k < kMaxVariables; ++k) {
      if (k == expansion_.last) continue;
      const std::size_t index = line % data_.axis[k].count;
      at[k] = static_cast<Long>(index);
      product = product * expansion_.leverage[k][index];
      line /= data_.axis[k].count;
    }
    return product;
  }

  const ProblemData& data_;
  const Expansion& expansion_;
  const PairSums& sums_;
  FunctionValues function_;
  std::size_t stride_;
  PairList coefficients_{expansion_.terms() * kChains}, estimates_{expansion_.count() * kChains},
      values_{expansion_.count()};
};

void visitTable(const ProblemData& data, const Decomposition& decomposition, const AnalysisOptions& options,
                const VisitResidual& visit) {
  const Expansion expansion = expandedButOne(data, decomposition, options);
  Line line(data, expansion, pairSums(options.instructionSet));
  for (std::size_t n = 0; n < expansion.lines(); ++n) {
    goOn(options);
    if (options.progress) options.progress(static_cast<double>(n) / static_cast<double>(expansion.lines()));
    line.visitPoints(n, visit);
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
