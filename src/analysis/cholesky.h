#pragma once

#include <optional>

#include "analysis/analysis_options.h"
#include "analysis/pair_table.h"

namespace tavimor {

/// The lower triangular L with L L^T = matrix, in pairs. Nothing where a pivot is not above 0.
/// Source: Golub & Van Loan, Matrix Computations, 4th ed., section 4.2.
std::optional<PairMatrix> choleskyFactor(const PairMatrix& matrix, const AnalysisOptions& options);

/// The inverse of a lower triangular matrix.
PairMatrix inverseOfLower(const PairMatrix& lower, const AnalysisOptions& options);

}  // namespace tavimor
