#pragma once

namespace tavimor {

/// The probability that |t| is at least as large, t having Student's distribution.
double twoSidedStudent(double t, double freedom);

/// What |t| does not exceed with the probability `level`.
double studentQuantile(double level, double freedom);

/// The probability that a ratio of variances is at least f.
double upperFisher(double f, double freedomAbove, double freedomBelow);

}  // namespace tavimor
