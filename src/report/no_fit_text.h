#pragma once

#include <string>

#include "engine/fit.h"

namespace tavimor {

/// Why a fit ended without a result, in one line for people. The outcome is none with a fit.
std::string reasonForNoFit(const Problem& problem, const FitOutcome& outcome);

}  // namespace tavimor
