#include "analysis/pictures/fitted_function.h"

#include <cmath>

namespace tavimor {

namespace {

std::vector<double> powers(double d, std::size_t count) {
  std::vector<double> terms(count, 1.0);
  for (std::size_t j = 1; j < count; ++j) terms[j] = terms[j - 1] * d;
  return terms;
}

std::vector<double> polynomials(const AxisBasis& basis, double x) {
  const double t = coordinateOf(basis.frame, typedValue(x)).high;
  std::vector<double> terms(basis.terms, 1.0);
  for (std::size_t j = 0; j + 1 < basis.terms; ++j) {
    const RecurrenceStep& step = basis.recurrence[j];
    const double before = j > 0 ? terms[j - 1] : 0.0;
    terms[j + 1] = step.scale * (t - step.shift) * terms[j] - step.back.high * before;
  }
  return terms;
}

}  // namespace

std::vector<double> FittedFunction::AxisTerms::at(double x) const {
  if (count == 1) return {1.0};
  return basis != nullptr ? polynomials(*basis, x) : powers(x - centre, count);
}

FittedFunction FittedFunction::listed(const Problem& problem, const Table4& Coef) {
  FittedFunction function;
  for (Long k = 0; k < kMaxVariables; ++k) function.axis_[k] = {Coef.extent(k), problem.Centre[k], nullptr};
  function.table_.assign(Coef.data(), Coef.data() + Coef.size());
  return function;
}

FittedFunction FittedFunction::exact(const Decomposition& decomposition) {
  FittedFunction function;
  function.table_ = decomposition.z.high;
  function.exponent_ = decomposition.exponent;
  for (Long k = 0; k < kMaxVariables; ++k)
    function.axis_[k] = {decomposition.axis[k].terms, 0.0, &decomposition.axis[k]};
  for (Long k = 0; k < kMaxVariables; ++k) function.combineTerms(k, decomposition.axis[k].inverse);
  return function;
}

// The orthonormal functions are sums of the polynomials: the coefficients of the polynomials are sums of theirs.
void FittedFunction::combineTerms(Long k, const PairMatrix& inverse) {
  const std::size_t count = axis_[k].count, inner = stride(k);
  std::vector<double> line(count);
  for (std::size_t n = 0; n < table_.size(); ++n) {
    if (n / inner % count != 0) continue;
    for (std::size_t a = 0; a < count; ++a) {
      line[a] = 0.0;
      for (std::size_t j = a; j < count; ++j) line[a] += inverse(j, a).high * table_[n + j * inner];
    }
    for (std::size_t a = 0; a < count; ++a) table_[n + a * inner] = line[a];
  }
}

std::size_t FittedFunction::stride(Long k) const {
  std::size_t stride = 1;
  for (Long axis = 0; axis < k; ++axis) stride *= axis_[axis].count;
  return stride;
}

std::vector<double> FittedFunction::contracted(Long k, const std::vector<double>& terms) const {
  const std::size_t count = terms.size(), inner = stride(k);
  std::vector<double> result(table_.size() / count);
  for (std::size_t n = 0; n < result.size(); ++n)
    for (std::size_t j = 0; j < count; ++j) result[n] += table_[(n / inner * count + j) * inner + n % inner] * terms[j];
  return result;
}

FittedFunction FittedFunction::heldAt(Long k, double x) const {
  FittedFunction held = *this;
  held.table_ = contracted(k, axis_[k].at(x));
  held.axis_[k] = {};
  return held;
}

std::vector<double> FittedFunction::along(Long k, std::span<const double> x) const {
  std::vector<double> values;
  values.reserve(x.size());
  for (const double one : x) values.push_back(std::ldexp(contracted(k, axis_[k].at(one)).front(), exponent_));
  return values;
}

std::vector<double> FittedFunction::over(Long k, std::span<const double> x, Long l, std::span<const double> y) const {
  std::vector<std::vector<double>> terms;
  for (const double one : x) terms.push_back(axis_[k].at(one));
  std::vector<double> values;
  values.reserve(x.size() * y.size());
  for (const double one : y) {
    const std::vector<double> line = contracted(l, axis_[l].at(one));
    for (const std::vector<double>& ofX : terms) {
      double sum = 0.0;
      for (std::size_t j = 0; j < ofX.size(); ++j) sum += line[j] * ofX[j];
      values.push_back(std::ldexp(sum, exponent_));
    }
  }
  return values;
}

}  // namespace tavimor
