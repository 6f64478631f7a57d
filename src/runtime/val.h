#pragma once

#include <string_view>

#include "runtime/long.h"

namespace tavimor {

/// The leading-number rule by which fields are read: leading blanks are skipped, the longest leading numeral is
/// taken (see scanNumeral), and 0 if there is none. Only "." is a decimal point: "1,5" is 1, "1.5abc" is 1.5.
double Val(std::string_view text);

/// Val, rounded to a Long with halves to even. Errors: Overflow.
Long ValLong(std::string_view text);

/// True where the whole text is one numeral of digits, blanks around it allowed. "1,5" is refused, since Val would
/// read it as 1; so are "INF" and "NAN", which are read back from files but are nothing to type.
bool IsNumeric(std::string_view text);

}  // namespace tavimor
