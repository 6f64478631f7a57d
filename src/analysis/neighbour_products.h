#pragma once

#include "analysis/pair_table.h"
#include "analysis/recurrence.h"

namespace tavimor {

/// The sums of w P_j P_k over some values, w any weights, where only those of each polynomial of a recurrence with
/// itself and with the next one are known: fills in the others. With t P_j = (P_{j+1} + back_j P_{j-1}) / scale_j +
/// shift_j P_j the sum of w P_j t P_k, written both ways, gives each from nearer ones:
///   S(j,k+1) = scale_k [(S(j+1,k) + back_j S(j-1,k)) / scale_j + (shift_j - shift_k) S(j,k)] - back_k S(j,k-1).
/// Source: the recurrence of mixed moments, Gautschi, Orthogonal Polynomials: Computation and Approximation, 2004, 2.1.
void completeProducts(const Recurrence& recurrence, PairMatrix& products);

/// How far the products filled in can be off at most.
struct CompletionErrors {
  double growth = 1.0;    // times the largest error of a known one,
  double rounding = 0.0;  // and this times the largest of all products
};
CompletionErrors completionErrors(const Recurrence& recurrence);

/// With more terms the bounds would grow too large.
constexpr std::size_t kMostCompleted = 12;

}  // namespace tavimor
