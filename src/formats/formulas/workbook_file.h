#pragma once

#include <string>

#include "formats/formulas/formula.h"

namespace tavimor {

/// The bytes of a spreadsheet's workbook with the fit, as the program tavimor-workbook writes it: a process of its own,
/// since its library would need a locale with a decimal point, and tavimor-cli is linked without shared libraries.
/// Errors: a RunTimeError for "tavimor-workbook" where that program is missing (FileNotFound) or fails (InvalidCall).
std::string workbookBytes(const Problem& problem, const Fit& fit, const FormulaOptions& options);

}  // namespace tavimor
