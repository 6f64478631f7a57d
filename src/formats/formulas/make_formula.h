#pragma once

#include "formats/formulas/formula.h"

namespace tavimor {

/// Whether every coefficient is a number: a fit that has overflowed has no formula.
bool hasFormula(const Fit& fit);

/// The formula of a fit. The same problem, fit and options always give the same formula.
/// Errors: InvalidCall where the fit has none, SubscriptOutOfRange for a value list that is too short.
Formula formulaOf(const Problem& problem, const Fit& fit, const FormulaOptions& options);

}  // namespace tavimor
