#pragma once

#include <string>

#include "formats/formulas/formula.h"

namespace tavimor {

/// Writes a workbook with the sheets Formula (cells for a point and the live value there), Coefficients, Statistics,
/// Data (given, estimated by live formulas up to 10,000 points and as numbers beyond, residual; as many points as a
/// sheet has rows) and, for one variable, a chart of both. No macros, no date.
/// Numbers keep 16 digits, as the library writes them.
/// Errors: PathFileAccess where the file cannot be written.
void writeWorkbook(const Problem& problem, const Formula& formula, const std::string& path);

}  // namespace tavimor
