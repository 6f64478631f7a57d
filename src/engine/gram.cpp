#include "engine/gram.h"

#include "model/var_values.h"
#include "runtime/run_time_error.h"

namespace tavimor {

namespace {

std::size_t matrixSize(Long degree) {
  if (degree < 0) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
  if (degree > Gram::kLargestDegree) throw RunTimeError(ErrorNumber::OutOfMemory);
  const std::size_t rows = static_cast<std::size_t>(degree) + 1;
  return rows * rows;
}

}  // namespace

Gram::Gram(Long degree) : degree_(degree), elements_(matrixSize(degree)) {}

std::vector<double> deviations(const Dimension& model, Long k) {
  const std::vector<double>& values = valueList(model, k);
  const std::size_t count = static_cast<std::size_t>(model.LastPoint[k]) + 1;
  if (values.size() < count) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
  std::vector<double> result(count);
  for (std::size_t i = 0; i < count; ++i) result[i] = values[i] - model.Centre[k];
  return result;
}

Gram normalMatrix(const Dimension& model, Long k) {
  Gram gram(model.Degree[k]);
  const Long degree = gram.degree();
  for (const double d : deviations(model, k)) {
    double p = 1.0;
    for (Long a = 0; a <= degree; ++a) {
      double q = p * p;
      for (Long b = a; b <= degree; ++b) {
        gram(a, b) += q;
        q = q * d;
      }
      p = p * d;
    }
  }
  for (Long a = 0; a <= degree; ++a)
    for (Long b = 0; b < a; ++b) gram(a, b) = gram(b, a);
  return gram;
}

}  // namespace tavimor
