#include "formats/formulas/check_points.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "engine/polynomial.h"
#include "model/value_lists.h"

namespace tavimor {

namespace {

using Point = PerVariable<double>;

// Element n = 1, 2, ... of van der Corput's sequence: the digits of n mirrored at the point, from 0 to below 1.
double mirrored(Long n, int base) {
  double sum = 0.0;
  double place = 1.0;
  for (; n > 0; n /= base) sum += (n % base) * (place /= base);
  return sum;
}

constexpr int kBases[kMaxVariables] = {2, 3, 5, 7};

Point corner(const Formula& formula, Long number) {
  Point point{};
  for (Long k = 0; k <= formula.last(); ++k)
    point[k] = (number >> k) % 2 == 0 ? formula.variables[k].lower : formula.variables[k].upper;
  return point;
}

Point middle(const Formula& formula) {
  Point point{};
  for (Long k = 0; k <= formula.last(); ++k) point[k] = formula.variables[k].lower / 2 + formula.variables[k].upper / 2;
  return point;
}

Point between(const Formula& formula, Long n) {
  Point point{};
  for (Long k = 0; k <= formula.last(); ++k) {
    const auto& [name, lower, upper, centre] = formula.variables[k];
    const double share = mirrored(n, kBases[k]);
    point[k] = std::clamp(lower * (1.0 - share) + upper * share, lower, upper);
  }
  return point;
}

Point gridPoint(const Problem& problem, Long n) {
  Point point{};
  for (Long k = 0; k <= problem.LastVar; ++k) {
    const auto& values = valueList(problem, k);
    point[k] = values[static_cast<std::size_t>(mirrored(n, kBases[k]) * static_cast<double>(values.size()))];
  }
  return point;
}

bool isInside(const Formula& formula, const Point& point) {
  for (Long k = 0; k <= formula.last(); ++k)
    if (point[k] < formula.variables[k].lower || point[k] > formula.variables[k].upper) return false;
  return true;
}

std::vector<Point> points(const Formula& formula, const Problem& problem, Long count) {
  std::vector<Point> all;
  for (Long number = 0; number < 2 << formula.last(); ++number) all.push_back(corner(formula, number));
  all.push_back(middle(formula));
  if (isInside(formula, problem.Centre)) all.push_back(problem.Centre);
  for (Long n = 1; std::ssize(all) < count; ++n) {
    all.push_back(gridPoint(problem, n));
    all.push_back(between(formula, n));
  }
  all.resize(static_cast<std::size_t>(count));
  return all;
}

Table4 magnitudes(const Table4& Coef) {
  Table4 result = Coef;
  for (std::size_t n = 0; n < result.size(); ++n) result.data()[n] = std::abs(result.data()[n]);
  return result;
}

// The bound of the relative error of a Horner's scheme: two operations for each level and power.
double relativeBound(const Table4& Coef) {
  double operations = 0.0;
  for (const Long degree : Coef.last()) operations += 2.0 * (static_cast<double>(degree) + 1.0);
  const double roundoff = operations * std::numeric_limits<double>::epsilon() / 2;
  return roundoff / (1.0 - roundoff);
}

}  // namespace

std::vector<CheckPoint> checkPoints(const Formula& formula, const Problem& problem, Long count) {
  const Table4 sizes = magnitudes(formula.Coef);
  const double relative = 2.0 * relativeBound(formula.Coef);
  std::vector<CheckPoint> checks;
  for (const Point& point : points(formula, problem, count)) {
    Point t = offsetsFrom(problem.Centre, point);
    CheckPoint check{point, valueAt(formula.Coef, {}, t), 0.0};
    for (double& offset : t) offset = std::abs(offset);
    check.rounding = relative * valueAt(sizes, {}, t);
    checks.push_back(check);
  }
  return checks;
}

}  // namespace tavimor
