#include "analysis/orthonormal_values.h"

#include <cmath>

namespace tavimor {

OrthonormalAt orthonormalAt(const AxisBasis& basis, const Pair& x) {
  const Pair t = coordinateOf(basis.frame, x);
  const double ofCoordinate = coordinateErrorOf(basis.frame, x);
  std::vector<Pair> polynomial(basis.terms);
  std::vector<double> error(basis.terms);
  polynomial[0] = 1.0;
  for (std::size_t j = 0; j + 1 < basis.terms; ++j) {
    const RecurrenceStep& step = basis.recurrence[j];
    const Pair before = j > 0 ? polynomial[j - 1] : Pair();
    const Pair factor = (t - Pair(step.shift)) * Pair(step.scale);
    polynomial[j + 1] = factor * polynomial[j] - step.back * before;
    const double size = std::fabs(factor.high), back = std::fabs(step.back.high);
    const double ofCurrent = std::fabs(polynomial[j].high);
    error[j + 1] = size * error[j] + (j > 0 ? back * error[j - 1] : 0.0) + step.scale * ofCoordinate * ofCurrent +
                   4 * kPairError * (size * ofCurrent + back * std::fabs(before.high));
  }
  OrthonormalAt result{std::vector<Pair>(basis.terms), 0.0, 0.0};
  double squares = 0.0, errorSquares = 0.0;
  for (std::size_t j = 0; j < basis.terms; ++j) {
    double carried = 0.0;
    for (std::size_t a = 0; a <= j; ++a) {
      const double inverse = std::fabs(basis.inverse(j, a).high);
      result.values[j] = result.values[j] + basis.inverse(j, a) * polynomial[a];
      carried +=
          inverse * (error[a] + static_cast<double>(basis.terms + 1) * kPairError * std::fabs(polynomial[a].high));
    }
    squares += result.values[j].high * result.values[j].high;
    errorSquares += carried * carried;
  }
  result.norm = std::sqrt(squares);
  result.error = std::sqrt(errorSquares);
  return result;
}

PairMatrix orthonormalValues(const AxisBasis& basis) {
  PairMatrix result(basis.count, basis.terms);
  for (std::size_t i = 0; i < basis.count; ++i)
    for (std::size_t j = 0; j < basis.terms; ++j) {
      Pair sum;
      for (std::size_t a = 0; a <= j; ++a) sum = sum + basis.inverse(j, a) * basis.values(i, a);
      result(i, j) = sum;
    }
  return result;
}

std::vector<Pair> axisLeverages(const PairMatrix& orthonormal) {
  std::vector<Pair> leverages(orthonormal.rows);
  for (std::size_t i = 0; i < orthonormal.rows; ++i)
    for (std::size_t j = 0; j < orthonormal.columns; ++j)
      leverages[i] = leverages[i] + orthonormal(i, j) * orthonormal(i, j);
  return leverages;
}

}  // namespace tavimor
