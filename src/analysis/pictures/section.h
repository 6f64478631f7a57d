#pragma once

#include "analysis/pictures/grid_values.h"
#include "analysis/pictures/shown_fit.h"
#include "analysis/pictures/thinned_points.h"

namespace tavimor {

/// Which section of a fit is wanted.
struct SectionChoice {
  Long variable = 0;                   // along which it runs
  PerVariable<double> at{};            // where the others are held
  std::optional<Long> familyVariable;  // a curve for each of these values of this variable
  std::vector<double> familyValues;
};

/// One curve: estimates at Section::x, and its intervals where they are defined.
struct SectionCurve {
  PerVariable<double> at{};
  std::vector<double> value;
  std::vector<double> low, high;                      // of the function's mean: the confidence band
  std::vector<double> predictionLow, predictionHigh;  // of one further value
  std::vector<double> listed;                         // the listed fit, where an eye can tell it from the exact one
  std::vector<PicturePoint> given;                    // the given values on this line, thinned; numbers along the axis
  PerVariable<Long> heldIndex{};                      // of the given values, entry `variable` excepted
  bool isOnGrid = false;                              // every held value is one of the grid
};

/// A section of the fit along one variable.
struct Section {
  Long variable = 0;
  std::optional<Long> familyVariable;
  ShownRange interval;    // beyond it the curve is extrapolated
  std::vector<double> x;  // ascending
  std::vector<SectionCurve> curves;
  double least = 0.0, largest = 0.0;  // of what is worth seeing: curves within the interval, given values, bands
  std::string notShown;               // why there is nothing to see; empty where there is

  bool hasBands() const { return !curves.empty() && !curves.front().low.empty(); }
};

/// Shapes: 401 values of x, over the range shown and a twentieth of it beyond either end.
/// Bands: estimate -+ t s |L^-1 P| and estimate -+ t s sqrt(1 + |L^-1 P|^2), t Student's quantile.
/// Source: Draper and Smith, Applied Regression Analysis, 3rd ed., 1998.
Section sectionOf(const ShownFit& fit, const SectionChoice& choice);

/// What is to be seen, in words and numbers, for those who do not see it.
std::string sectionText(const ShownFit& fit, const Section& section);

}  // namespace tavimor
