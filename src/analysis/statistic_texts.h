#pragma once

#include <span>

namespace tavimor {

/// A figure with its name and its definition, so that every place that shows it says the same.
struct StatisticText {
  const char* key;   // as in the JSON output
  const char* name;  // for people
  const char* definition;
};

/// In the order in which they are shown. N points, P coefficients, RSS the sum of squared residuals of the precise
/// solution, TSS that of the deviations from the mean.
std::span<const StatisticText> statisticTexts();

/// A figure of the listing beside that of the textbook which answers the same question.
struct ListedFigureText {
  const char* name;        // as it is listed
  const char* definition;  // of the listed figure
  const char* key;         // of the textbook's, or "mean"
  const char* difference;  // why the two differ, by more than rounding; empty where they do not
};

/// In the order of the listing.
std::span<const ListedFigureText> listedFigureTexts();

}  // namespace tavimor
