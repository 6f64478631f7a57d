#pragma once

#include "analysis/analysis_options.h"
#include "analysis/axis_basis.h"
#include "analysis/function_values.h"
#include "analysis/pair_table.h"

namespace tavimor {

/// The table with axis k replaced by the columns of a matrix that has a row per element of that axis:
///   result(.., c, ..) = sum over i of table(.., i, ..) * matrix(i, c).
/// Each sum is one chain over i, cut into blocks, for any number of threads and lanes.
/// Errors: OutOfMemory, AnalysisCancelled.
PairTable contracted(const PairTable& table, int k, const PairMatrix& matrix, const AnalysisOptions& options);

/// The same with the values of a basis. Elements at mirrored values are added and subtracted first and share their
/// products: half as many are left.
PairTable contracted(const PairTable& table, int k, const AxisBasis& basis, const AnalysisOptions& options);

/// The same for the function, and what one reading of it tells besides.
struct FunctionContraction {
  PairTable table;
  Pair sumOfSquares;
  SeenValues function;
};
FunctionContraction contracted(const FunctionValues& function, const PerVariable<std::size_t>& extent, int k,
                               const AxisBasis& basis, const AnalysisOptions& options);

}  // namespace tavimor
