#include "model/spec_fields.h"

#include "runtime/checked_arithmetic.h"
#include "runtime/number_text.h"
#include "runtime/val.h"

namespace tavimor {

void SetDisplayedSpecs(const Problem& problem, AllSpecFields& fields) {
  for (Long k = 0; k <= problem.LastVar; ++k) {
    fields[k].txtLL = numberText(problem.LowerLimit[k]);
    fields[k].txtUL = numberText(problem.UpperLimit[k]);
    fields[k].txtTerms = numberText(problem.Degree[k]);
    fields[k].txtPoints = numberText(addLongs(problem.LastPoint[k], 1));
    fields[k].chkSpaced = problem.EquallySpaced[k];
  }
}

double centreFromText(const std::string& text, double lowerLimit, double upperLimit) {
  return text == "*" ? inRange((upperLimit + lowerLimit) / 2) : Val(text);
}

}  // namespace tavimor
