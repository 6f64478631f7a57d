#pragma once

#include <span>
#include <vector>

#include "analysis/pair_sums.h"

namespace tavimor {

/// The numbers of a three-term recurrence whose polynomials are nearly orthogonal over the values of an axis:
///   P_0 = 1,   P_{j+1} = scale_j (t - shift_j) P_j - back_j P_{j-1}.
/// The scales are powers of two that keep the norm of each near that of P_0. Whatever the numbers are, they define the
/// basis exactly.
/// Source: Forsythe, Generation and use of orthogonal polynomials for data-fitting with a digital computer, 1957.
using Recurrence = std::vector<RecurrenceStep>;  // terms - 1 of them

/// For `count` equally spaced values, in the coordinate of AxisFrame: the discrete Chebyshev polynomials, exactly.
Recurrence recurrenceOfSpaced(std::size_t count, std::size_t terms);

/// The square of the norm of each polynomial of recurrenceOfSpaced.
std::vector<Pair> squaredNormsOfSpaced(std::size_t count, std::size_t terms);

/// For any values, roughly: by Stieltjes' procedure in doubles, every polynomial made orthogonal to those before it
/// twice more. Time grows with values * terms^2.
Recurrence recurrenceOf(std::span<const double> coordinates, std::size_t terms);

}  // namespace tavimor
