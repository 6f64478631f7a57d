#include "engine/gram.h"

#include <algorithm>
#include <string>

#include "engine/called_off.h"
#include "engine/lane_sums.h"
#include "runtime/run_time_error.h"

namespace tavimor {

namespace {

constexpr std::size_t kFewestPoints = 64;  // fewer at a time do not pay

std::size_t matrixSize(Long degree) {
  requireNormalMatrix(degree);
  const std::size_t rows = static_cast<std::size_t>(degree) + 1;
  return rows * rows;
}

// The loops that define the sums; the lanes give the same bits.
void addPlainly(const Axis& axis, const FitOptions& options, Gram& gram) {
  for (std::size_t i = 0; i < axis.count; ++i) {
    endIfCalledOff(options);
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

void requireNormalMatrix(Long degree) {
  if (degree < 0) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
  if (degree > kMostDegree)
    throw RunTimeError(ErrorNumber::OutOfMemory, {},
                       "for the normal matrix of degree " + std::to_string(degree) + ": " +
                           std::to_string(kMostDegree) + " is the largest");
}

Gram::Gram(Long degree) : degree_(degree), elements_(matrixSize(degree)) {}

Gram normalMatrix(const Problem& problem, Long k, const FitOptions& options) {
  Gram gram(problem.Degree[k]);
  const Axis axis = axisOf(problem, k);
  if (const LaneSums* lanes = laneSums(options.instructionSet)) {
    const std::size_t terms = static_cast<std::size_t>(gram.degree()) + 1;
    std::vector<double> sums(lanes->normalSumCount(terms));
    const double workOfPoint = static_cast<double>(terms) * static_cast<double>(terms);
    const std::size_t part = piecesBetweenLooks(workOfPoint, kFewestPoints, axis.count + kFewestPoints);
    for (std::size_t first = 0; first < axis.count; first += part) {
      endIfCalledOff(options);
      const Axis points{axis.values + first, std::min(part, axis.count - first), axis.centre};
      lanes->normalMatrix(points, terms, sums.data(), gram.data());
    }
  } else {
    addPlainly(axis, options, gram);
  }
  for (Long a = 0; a <= gram.degree(); ++a)
    for (Long b = 0; b < a; ++b) gram(a, b) = gram(b, a);
  return gram;
}

}  // namespace tavimor
