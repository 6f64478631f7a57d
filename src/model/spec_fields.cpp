#include "model/spec_fields.h"

#include <cmath>

#include "runtime/checked_arithmetic.h"
#include "runtime/number_text.h"
#include "runtime/val.h"

namespace tavimor {

namespace {

double middle(double lowerLimit, double upperLimit) { return (upperLimit + lowerLimit) / 2; }

}  // namespace

void SetDisplayedSpecs(const Problem& problem, AllSpecFields& fields) {
  for (Long k = 0; k <= problem.LastVar; ++k) {
    fields[k].txtLL = numberText(problem.LowerLimit[k]);
    fields[k].txtUL = numberText(problem.UpperLimit[k]);
    fields[k].txtTerms = numberText(problem.Degree[k]);
    fields[k].txtPoints = numberText(addLongs(problem.LastPoint[k], 1));
    fields[k].chkSpaced = problem.EquallySpaced[k];
  }
}

bool givesCentre(const std::string& text, double lowerLimit, double upperLimit) {
  return text != "*" || std::isfinite(middle(lowerLimit, upperLimit));
}

double centreFromText(const std::string& text, double lowerLimit, double upperLimit) {
  return text == "*" ? inRange(middle(lowerLimit, upperLimit)) : Val(text);
}

}  // namespace tavimor
