#pragma once

#include <string>

#include "model/problem.h"

namespace tavimor {

/// The specification fields of one variable as the window shows them: texts and a check mark. They stand between the
/// model and the user, so that what a field cannot show does not reach a fit either.
struct SpecFields {
  std::string txtLL;         // lower limit
  std::string txtUL;         // upper limit
  std::string txtTerms;      // degree
  std::string txtPoints;     // number of values
  std::string txtExpansion;  // centre of expansion, or "*" for the middle of the interval
  bool chkSpaced = false;

  bool operator==(const SpecFields&) const = default;
};

/// The fields of all variables; those beyond LastVar do not count.
using AllSpecFields = PerVariable<SpecFields>;

/// Shows the problem's specifications in the fields of variables 0 to LastVar. The centre's text is left alone: the
/// reader of a problem and the user put it there as it stands.
void SetDisplayedSpecs(const Problem& problem, AllSpecFields& fields);

/// False for "*" where the middle of the limits is beyond the range of a double: then the text gives no centre.
bool givesCentre(const std::string& text, double lowerLimit, double upperLimit);

/// The centre that a text gives for an interval: the middle for exactly "*", else the text's Val.
/// Errors: Overflow for the middle of limits that have none.
double centreFromText(const std::string& text, double lowerLimit, double upperLimit);

}  // namespace tavimor
