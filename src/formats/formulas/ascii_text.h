#pragma once

#include <string>
#include <string_view>

namespace tavimor {

/// The text in ASCII: letters of German, French and the like and of Greek are written out ("ö" is "oe", "λ" is
/// "lambda"), every other character that is not in ASCII becomes `other`.
std::string asciiText(std::string_view text, char other);

}  // namespace tavimor
