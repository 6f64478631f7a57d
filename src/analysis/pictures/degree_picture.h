#pragma once

#include <string>

#include "analysis/degree_map.h"
#include "analysis/pictures/contour_lines.h"

namespace tavimor {

/// A combination of degrees in a picture of all.
struct DegreePoint {
  double terms = 0.0, s = 0.0;
  std::size_t number = 0;  // among the combinations
};

/// The standard deviations of all combinations of degrees against their numbers of coefficients. Combinations without
/// one, or with 0, are left out and counted: the axis is logarithmic.
struct DegreePicture {
  std::vector<DegreePoint> beaten;       // by a combination with no more coefficients and no larger s
  std::vector<DegreePoint> best;         // the others, in the order of coefficients
  std::vector<DegreePoint> recommended;  // one at most
  std::size_t leftOut = 0;
  Sheet sheet;  // for two variables: log10 of s over the degrees of both, NaN where there is none
  std::string notShown;
};

/// The combinations are all of those that degreeMap has found; `lastVariable` is the problem's.
DegreePicture degreePicture(std::span<const DegreeCombination> combinations, Long lastVariable);

/// "2, 3": the degrees of the declared variables.
std::string degreesText(const DegreeCombination& combination, Long lastVariable);

/// What is to be seen, in words and numbers, for those who do not see it.
std::string degreePictureText(std::span<const DegreeCombination> combinations, Long lastVariable,
                              const DegreePicture& picture);

}  // namespace tavimor
