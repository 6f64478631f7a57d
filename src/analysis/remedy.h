#pragma once

#include "analysis/predicted_digits.h"

namespace tavimor {

/// What to do about coefficients with few digits.
enum class Remedy {
  None,               // nothing is gained
  CentreInTheMiddle,  // the fixed order itself gains a digit or more
  PreciseCoefficients
};

struct RemedyAdvice {
  Remedy remedy = Remedy::None;
  double predictedNow = 0.0, predictedInTheMiddle = 0.0;  // digits of the worst coefficient
};

/// The centres in the middle of the values of each declared variable.
PerVariable<Pair> middlesOf(const ProblemData& data);

/// Predicts the digits about both centres. Precise coefficients are the advice where fewer than `enough` digits are
/// right now and the middle does not help.
RemedyAdvice adviseRemedy(const ProblemData& data, const Decomposition& decomposition, double digitsNow,
                          double enough = 6.0);

}  // namespace tavimor
