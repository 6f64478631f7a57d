#include "model/spec_fields.h"

#include "runtime/number_text.h"
#include "runtime/val.h"

namespace tavimor {

void SetDisplayedSpecs(const Dimension& model, AllSpecFields& fields) {
  for (Long k = 0; k <= model.LastVar; ++k) {
    fields[k].txtLL = numberText(model.LowerLimit[k]);
    fields[k].txtUL = numberText(model.UpperLimit[k]);
    fields[k].txtTerms = numberText(model.Degree[k]);
    fields[k].txtPoints = numberText(addLongs(model.LastPoint[k], 1));
    fields[k].chkSpaced = model.EquallySpaced[k];
  }
}

double centreFromText(const std::string& text, double lowerLimit, double upperLimit) {
  return text == "*" ? (upperLimit + lowerLimit) / 2 : Val(text);
}

}  // namespace tavimor
