#include "analysis/power_transform.h"

#include <cmath>

namespace tavimor {

namespace {

// The polynomials of the recurrence in powers of t - origin, and the running error of each number.
struct PowersOfPolynomials {
  PairMatrix coefficients;  // power by polynomial
  std::vector<double> errors;
};

PowersOfPolynomials powersOfPolynomials(const AxisBasis& basis, const Pair& origin, double originError) {
  const std::size_t m = basis.terms;
  PowersOfPolynomials w{PairMatrix(m, m), std::vector<double>(m * m)};
  const auto element = [&](std::size_t a, std::size_t j) { return w.coefficients(a, j); };
  const auto error = [&](std::size_t a, std::size_t j) -> double& { return w.errors[a * m + j]; };
  w.coefficients(0, 0) = 1.0;
  for (std::size_t j = 0; j + 1 < m; ++j) {
    const RecurrenceStep& step = basis.recurrence[j];
    const Pair factor = origin - Pair(step.shift);
    const double size = std::fabs(factor.high), back = std::fabs(step.back.high);
    for (std::size_t a = 0; a <= j + 1; ++a) {
      const Pair shifted = a > 0 ? element(a - 1, j) : Pair();
      const Pair before = j > 0 ? element(a, j - 1) : Pair();
      w.coefficients(a, j + 1) = (shifted + factor * element(a, j)) * Pair(step.scale) - step.back * before;
      const double carried =
          step.scale * ((a > 0 ? error(a - 1, j) : 0.0) + size * error(a, j)) + (j > 0 ? back * error(a, j - 1) : 0.0);
      const double magnitudes =
          step.scale * (std::fabs(shifted.high) + size * std::fabs(element(a, j).high)) + back * std::fabs(before.high);
      error(a, j + 1) =
          carried + step.scale * originError * std::fabs(element(a, j).high) + 4 * kPairError * magnitudes;
    }
  }
  return w;
}

}  // namespace

PowerTransform powerTransform(const AxisBasis& basis, const Pair& centre, PowerUnit unitOfPowers) {
  const bool scales = unitOfPowers == PowerUnit::Variable;
  const std::size_t m = basis.terms;
  const PowersOfPolynomials w =
      powersOfPolynomials(basis, coordinateOf(basis.frame, centre), coordinateErrorOf(basis.frame, centre));
  PowerTransform transform{PairMatrix(m, m), scales ? basis.frame.exponent : 0, std::vector<double>(m),
                           std::vector<double>(m)};
  Pair unit = 1.0;  // scale^a
  for (std::size_t a = 0; a < m; ++a) {
    double squares = 0.0, errorSquares = 0.0;
    for (std::size_t j = a; j < m; ++j) {
      Pair sum;
      double carried = 0.0, magnitudes = 0.0;
      for (std::size_t i = a; i <= j; ++i) {
        const double inverse = std::fabs(basis.inverse(j, i).high);
        sum = sum + w.coefficients(a, i) * basis.inverse(j, i);
        carried += w.errors[a * m + i] * inverse;
        magnitudes += std::fabs(w.coefficients(a, i).high) * inverse;
      }
      transform.matrix(a, j) = sum * unit;
      const double error = carried + static_cast<double>(m + 1) * kPairError * magnitudes;
      squares += sum.high * sum.high;
      errorSquares += error * error;
    }
    transform.norm[a] = std::sqrt(squares) * std::fabs(unit.high);
    const double ofUnit = static_cast<double>(a) * (basis.frame.scaleError + 6 * kPairError);
    transform.error[a] = std::sqrt(errorSquares / squares) + ofUnit + std::pow(m, 1.5) * kPairError;
    if (scales) unit = unit * basis.frame.scale;
  }
  return transform;
}

}  // namespace tavimor
