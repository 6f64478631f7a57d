#include "analysis/listed_digits.h"

#include <cmath>

#include "analysis/right_digits.h"
#include "runtime/run_time_error.h"

namespace tavimor {

namespace {

// The root of a quotient whose relative error is small; the bound is that of the dividend where it is not.
Bounded rootOf(const Bounded& dividend, const Pair& divisor, double ofDivisor) {
  const Pair quotient = dividend.value / divisor;
  if (!(quotient.high > 0.0)) return {Pair(), std::sqrt(dividend.bound / divisor.high)};
  const Pair root = squareRoot(quotient);
  const double relative = dividend.bound / dividend.value.high + ofDivisor / divisor.high + 4 * kPairError;
  return {root, root.high * relative};
}

// A function that is constant is listed with a correlation of 1.
Bounded correlationOf(const PreciseFit& fit) {
  if (std::fabs(fit.totalSum.value.high) <= fit.totalSum.bound) return {Pair(1.0), 0.0};
  const Bounded explained{fit.totalSum.value - fit.residualSum.value, fit.totalSum.bound + fit.residualSum.bound};
  return rootOf(explained, fit.totalSum.value, fit.totalSum.bound);
}

// Nothing to count where a figure is 0 as far as can be told, and listed as such.
std::optional<double> digitsOfFigure(double listed, const Bounded& precise) {
  if (std::fabs(precise.value.high) <= precise.bound && std::fabs(listed) <= precise.bound) return std::nullopt;
  return rightDigits(listed, precise);
}

}  // namespace

ListedDigits listedDigits(const Fit& listed, const PreciseFit& precise) {
  if (listed.Coef.size() != precise.termCount()) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
  ListedDigits digits;
  for (std::size_t n = 0; n < precise.termCount(); ++n) {
    const PreciseCoefficient& one = precise.coefficients[n];
    digits.coefficients.push_back(rightDigits(listed.Coef.data()[n], one.solution));
    if (one.isNoise() || !(digits.coefficients[n] < digits.worst)) continue;
    digits.worst = digits.coefficients[n];
    digits.worstCoefficient = n;
  }
  digits.correlation = digitsOfFigure(listed.CorrCoef, correlationOf(precise));
  digits.residualSum = digitsOfFigure(listed.SumRes2, precise.residualSum);
  digits.averageGiven = digitsOfFigure(listed.AvgGiven, precise.mean);
  digits.averageEstimated = digitsOfFigure(listed.AvgEstimated, precise.mean);
  if (precise.points > 2) {
    const Pair divisor(static_cast<double>(precise.points) - 2);
    digits.standardError = digitsOfFigure(listed.StdErr, rootOf(precise.residualSum, divisor, 0.0));
  }
  return digits;
}

}  // namespace tavimor
