#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "formats/formulas/formula.h"
#include "formats/formulas/identifiers.h"

namespace tavimor {

/// The names that a formula's program text uses, entry k belonging to variable k.
struct ProgramNames {
  std::string function;
  std::vector<std::string> x;  // the variables
  std::vector<std::string> t;  // x - centre
  std::vector<std::string> s;  // the sums of Horner's scheme
  std::vector<std::string> j;  // the powers
  std::string coef;            // the table of coefficients
  std::string points;          // the table of check points
  std::string module;          // what holds the function, where a language asks for that
  std::string check;           // what checks it, where that needs a name

  /// "x, y"
  std::string arguments() const;
};

/// Names that are legal in a language with these reserved words. The function and the variables have the first choice.
ProgramNames programNames(const Formula& formula, std::string_view reserved,
                          LetterCase letterCase = LetterCase::Matters);

}  // namespace tavimor
