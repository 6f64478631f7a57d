#include "analysis/neighbour_products.h"

#include <algorithm>
#include <cmath>

namespace tavimor {

namespace {

// S(j,k+1) = next S(j+1,k) + before S(j-1,k) + same S(j,k) - back S(j,k-1); `before` is 0 where there is none.
struct Step {
  std::size_t j, k;
  double next;
  Pair before, same, back;
};

Step stepTo(const Recurrence& recurrence, std::size_t j, std::size_t k) {
  const RecurrenceStep &ofJ = recurrence[j], &ofK = recurrence[k];
  const double ratio = ofK.scale / ofJ.scale;
  return {
      j,       k, ratio, j > 0 ? ofJ.back * Pair(ratio) : Pair(), (Pair(ofJ.shift) - Pair(ofK.shift)) * Pair(ofK.scale),
      ofK.back};
}

// From the nearest products to the farthest.
template <class Visit>
void forEachStep(const Recurrence& recurrence, Visit visit) {
  const std::size_t m = recurrence.size() + 1;
  for (std::size_t distance = 1; distance + 1 < m; ++distance)
    for (std::size_t j = 0; j + distance + 1 < m; ++j) visit(stepTo(recurrence, j, j + distance));
}

std::size_t rowBefore(std::size_t j) { return j > 0 ? j - 1 : 0; }

// The most that a unit of error in each of the known products adds up to in another one.
double growthOfErrors(const Recurrence& recurrence) {
  const std::size_t m = recurrence.size() + 1, known = 2 * m - 1;
  std::vector<double> shares(m * m * known);  // of product j, k from the known ones
  const auto share = [&](std::size_t j, std::size_t k, std::size_t n) -> double& {
    return shares[(j * m + k) * known + n];
  };
  for (std::size_t j = 0; j < m; ++j) share(j, j, 2 * j) = 1.0;
  for (std::size_t j = 0; j + 1 < m; ++j) share(j, j + 1, 2 * j + 1) = 1.0;
  double most = 1.0;
  forEachStep(recurrence, [&](const Step& step) {
    double sum = 0.0;
    for (std::size_t n = 0; n < known; ++n) {
      const double one = step.next * share(step.j + 1, step.k, n) +
                         step.before.high * share(rowBefore(step.j), step.k, n) +
                         step.same.high * share(step.j, step.k, n) - step.back.high * share(step.j, step.k - 1, n);
      share(step.j, step.k + 1, n) = one;
      sum += std::fabs(one);
    }
    most = std::max(most, sum);
  });
  return most;
}

// What the roundings of the steps add up to at most, beside the largest product.
double roundingOfSteps(const Recurrence& recurrence) {
  const std::size_t m = recurrence.size() + 1;
  std::vector<double> errors(m * m);
  double most = 0.0;
  forEachStep(recurrence, [&](const Step& step) {
    const auto error = [&](std::size_t j, std::size_t k) { return errors[j * m + k]; };
    const double next = std::fabs(step.next), before = std::fabs(step.before.high), same = std::fabs(step.same.high),
                 back = std::fabs(step.back.high);
    const double carried = next * error(step.j + 1, step.k) + before * error(rowBefore(step.j), step.k) +
                           same * error(step.j, step.k) + back * error(step.j, step.k - 1);
    errors[step.j * m + step.k + 1] = carried + 5 * kPairError * (next + before + same + back);
    most = std::max(most, errors[step.j * m + step.k + 1]);
  });
  return most;
}

}  // namespace

void completeProducts(const Recurrence& recurrence, PairMatrix& products) {
  forEachStep(recurrence, [&](const Step& step) {
    const Pair forth = products(step.j + 1, step.k) * Pair(step.next) +
                       products(rowBefore(step.j), step.k) * step.before + products(step.j, step.k) * step.same;
    products(step.j, step.k + 1) = products(step.k + 1, step.j) = forth - products(step.j, step.k - 1) * step.back;
  });
}

CompletionErrors completionErrors(const Recurrence& recurrence) {
  return {growthOfErrors(recurrence), roundingOfSteps(recurrence)};
}

}  // namespace tavimor
