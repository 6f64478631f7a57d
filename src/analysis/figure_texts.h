#pragma once

#include <string>
#include <string_view>

#include "analysis/analysis.h"

namespace tavimor {

/// Figures as texts, the same on the command line and in windows; "-" where one is not defined.
std::string textOf(const std::optional<double>& value);
std::string digitsText(const std::optional<double>& digits);

/// Figures beside a coefficient are looked at and not calculated with: six digits make the table fit a screen.
std::string shortText(const std::optional<double>& value);

/// The digits that the bound leaves, 15 at most.
std::string preciseText(const Bounded& solution);

/// The figure with a key of statisticTexts(), or "mean"; 0 where it cannot be told from 0.
std::string figureText(const Analysis& analysis, std::string_view key);

/// "2,1": a degree per declared variable.
std::string degreesText(const Problem& problem, const PerVariable<Long>& degrees);

}  // namespace tavimor
