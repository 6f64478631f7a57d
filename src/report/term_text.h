#pragma once

#include <string>

#include "model/problem.h"

namespace tavimor {

/// The term that the coefficient with these indices multiplies, written in the variables' names: "*x^2*(y-0.5)"; empty
/// for the constant. PeriodFlag false writes sines and cosines, TrigFlag closes their brackets; each test stands on its
/// own flag.
std::string termText(const Problem& problem, const PerVariable<Long>& index);

/// The same without the "*" in front: "x^2*(y-0.5)"; "1" for the constant.
std::string plainTermText(const Problem& problem, const PerVariable<Long>& index);

}  // namespace tavimor
