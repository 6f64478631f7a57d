#include "engine/gram.h"

#include "engine/lane_sums.h"
#include "runtime/run_time_error.h"

namespace tavimor {

namespace {

std::size_t matrixSize(Long degree) {
  if (degree < 0) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
  if (degree > Gram::kLargestDegree) throw RunTimeError(ErrorNumber::OutOfMemory);
  const std::size_t rows = static_cast<std::size_t>(degree) + 1;
  return rows * rows;
}

// The loops that define the sums; the lanes give the same bits.
void addPlainly(const Axis& axis, Gram& gram) {
  for (std::size_t i = 0; i < axis.count; ++i) {
    const double d = axis.values[i] - axis.centre;
    double p = 1.0;
    for (Long a = 0; a <= gram.degree(); ++a) {
      double q = p * p;
      for (Long b = a; b <= gram.degree(); ++b) {
        gram(a, b) += q;
        q = q * d;
      }
      p = p * d;
    }
  }
}

}  // namespace

Gram::Gram(Long degree) : degree_(degree), elements_(matrixSize(degree)) {}

Gram normalMatrix(const Problem& problem, Long k, const FitOptions& options) {
  Gram gram(problem.Degree[k]);
  const Axis axis = axisOf(problem, k);
  if (const LaneSums* lanes = laneSums(options.instructionSet)) {
    const std::size_t terms = static_cast<std::size_t>(gram.degree()) + 1;
    std::vector<double> sums(lanes->normalSumCount(terms));
    lanes->normalMatrix(axis, terms, sums.data(), gram.data());
  } else {
    addPlainly(axis, gram);
  }
  for (Long a = 0; a <= gram.degree(); ++a)
    for (Long b = 0; b < a; ++b) gram(a, b) = gram(b, a);
  return gram;
}

}  // namespace tavimor
