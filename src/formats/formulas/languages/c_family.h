#pragma once

#include <string>
#include <string_view>

#include "formats/formulas/formula.h"
#include "formats/formulas/remarks.h"

namespace tavimor {

/// Where C and C++ differ.
struct CDialect {
  LanguageNotes remarks;
  std::string functionHeader;  // what a function that gives NaN includes
  std::string checkHeader;     // what the check includes
  std::string constant;        // of a table
  std::string absolute;
  std::string print;
  std::string notANumber;
};

/// The formula as `double NAME(double, ...)` with a main function behind -DCHECK.
std::string cFamilyFormula(const Formula& formula, std::string_view reserved, const CDialect& dialect);

}  // namespace tavimor
