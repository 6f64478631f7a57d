#include "engine/polynomial.h"

#include <algorithm>
#include <cmath>
#include <span>

#include "runtime/checked_arithmetic.h"

namespace tavimor {

namespace {

class Levels {
 public:
  Levels(const Table4& coef, const PerVariable<bool>& trigonometric, const PerVariable<double>& t)
      : coef_(coef), trigonometric_(trigonometric), t_(t) {}

  // The sum over variables 0 to k; `offset` is where the indices of the outer variables lead in the table.
  double sum(int k, std::size_t offset) const {
    if (k < 0) return coef_.data()[offset];
    return trigonometric_[k] ? trigSum(k, offset) : powerSum(k, offset);
  }

 private:
  double inner(int k, std::size_t offset, Long i) const { return sum(k - 1, offset + i * coef_.stride(k)); }

  double powerSum(int k, std::size_t offset) const {
    double sum = 0.0;
    for (Long i = coef_.last()[k]; i >= 0; --i) sum = sum * t_[k] + inner(k, offset, i);
    return sum;
  }

  double trigSum(int k, std::size_t offset) const {
    double sum = 0.0;
    double angle = 0.0;
    for (Long i = 0; i <= coef_.last()[k]; ++i) {
      const bool isSine = i % 2 != 0;
      if (isSine) angle = angle + t_[k];
      sum = inner(k, offset, i) * (isSine ? std::sin(angle) : std::cos(angle)) + sum;
    }
    return sum;
  }

  const Table4& coef_;
  const PerVariable<bool>& trigonometric_;
  const PerVariable<double>& t_;
};

bool areFinite(std::span<const double> numbers) {
  return std::all_of(numbers.begin(), numbers.end(), [](double number) { return std::isfinite(number); });
}

}  // namespace

double valueAt(const Table4& Coef, const PerVariable<bool>& TrigFlag, const PerVariable<double>& t) {
  const double value = Levels(Coef, TrigFlag, t).sum(kMaxVariables - 1, 0);
  if (std::isfinite(value)) return value;
  const bool beganInRange = areFinite({Coef.data(), Coef.size()}) && areFinite(t);
  return beganInRange ? inRange(value) : value;
}

double offsetFrom(double centre, double x) {
  const double t = x - centre;
  return std::isfinite(x) && std::isfinite(centre) ? inRange(t) : t;
}

PerVariable<double> offsetsFrom(const PerVariable<double>& Centre, const PerVariable<double>& x) {
  PerVariable<double> t{};
  for (int k = 0; k < kMaxVariables; ++k) t[k] = offsetFrom(Centre[k], x[k]);
  return t;
}

}  // namespace tavimor
