#pragma once

#include "engine/gram.h"
#include "model/table4.h"

namespace tavimor {

enum class Solution { Found, Singular };

/// Solves gram * y = c for every line c of `coef` along axis k and puts y in its place: Gaussian elimination with
/// partial pivoting, then back substitution. Every test against zero is exact.
/// Shapes: axis k of coef has gram.degree() + 1 elements; the other axes are as they are.
/// A column whose pivots are all zero is skipped; the zero diagonal that remains makes the system Singular, and coef
/// is left in whatever state it has reached.
/// `gram` ends upper triangular; what stands below the diagonal is never read again.
/// Source: Golub & Van Loan, Matrix Computations, 4th ed., sections 3.2 and 3.4.
Solution solveAlong(Long k, Gram& gram, Table4& coef, const FitOptions& options = {});

}  // namespace tavimor
