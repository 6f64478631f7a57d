#pragma once

#include <string>

#include "analysis/analysis.h"

namespace tavimor {

/// What can be done about a fit.
enum class Action { None, FitAgain, CentreInTheMiddle, PreciseCoefficients, OtherDegrees };

/// What a fit is worth, for people.
struct Advice {
  std::string summary;   // "6 of 15 digits are right"
  std::string sentence;  // with what can be done and what it would bring
  Action action = Action::None;
  PerVariable<Long> degrees{};  // OtherDegrees: these
};

/// The worst coefficient first, then what the remedy brings, which was tried. Lower degrees are the advice where the
/// coefficients need none, and by BIC fewer of them are enough. Errors: AnalysisCancelled.
Advice adviceOn(const Analysis& analysis, const AnalysisOptions& options = {});

}  // namespace tavimor
