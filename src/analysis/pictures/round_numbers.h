#pragma once

#include <string>
#include <vector>

namespace tavimor {

/// The step 1, 2 or 5 times a power of ten that cuts an interval into at most `parts` parts. The interval is not empty.
double roundStep(double lower, double upper, int parts);

/// The multiples of a round step strictly between two numbers, in ascending order, at most `most` of them; none where
/// the numbers are not finite or do not ascend.
std::vector<double> roundNumbersBetween(double lower, double upper, int most);

/// What the numbers along an axis are divided by, as a power of ten: 0 but for those that are so large or so small that
/// a plotting library could not calculate with them.
int axisExponent(double lower, double upper);

/// A number divided by a power of ten, of any size.
double dividedByPower(double value, int exponent);

/// A number with 6 significant digits, for the eye.
std::string shortNumber(double value);

}  // namespace tavimor
