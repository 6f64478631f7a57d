#pragma once

#include "formats/formulas/formula.h"

namespace tavimor {

/// Rounds the coefficients to few digits so that the formula, evaluated exactly, stays within `within` of the fit over
/// the whole box:
///   bound = sum over the terms of |change of the coefficient| * product of (largest |x_k - centre_k|)^jk <= within.
/// Every term gets the same share of it, and each coefficient the fewest digits that keep to the share; a term whose
/// whole contribution does goes. The share is the largest of within, 3/4 within, 9/16 within ... that keeps the bound.
/// A power that no term has any more is taken from the table.
void roundWithin(Formula& formula, const Problem& problem, double within);

}  // namespace tavimor
