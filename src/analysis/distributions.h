#pragma once

namespace tavimor {

/// The probability that |t| is at least as large, t having Student's distribution.
double twoSidedStudent(double t, double freedom);

/// What |t| does not exceed with the probability `level`.
double studentQuantile(double level, double freedom);

/// The probability that a ratio of variances is at least f.
double upperFisher(double f, double freedomAbove, double freedomBelow);

/// What a normal variable of mean 0 and deviation 1 does not exceed with the probability `level`, and the probability
/// that it is at most x.
double normalQuantile(double level);
double normalProbability(double x);

}  // namespace tavimor
