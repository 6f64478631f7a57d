#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/long.h"

namespace tavimor {

/// The one conversion of a double to text for lists, labels, text boxes and script statements: the shortest form
/// with at most 15 significant digits, a "0" before the point of a pure fraction, the point always ".".
/// Exponent form ("1.5E-07", "1E+15") where the exponent is below -4 or at least 15, as C's "%.15G" has it.
/// A zero is "0" whatever its sign; the values that are no numbers are "INF", "-INF" and "NAN".
std::string numberText(double value);
std::string numberText(Long value);

/// The item of a Write line: as numberText, without the zero before the point of a pure fraction (".5", "-.25").
std::string writtenNumber(double value);
std::string writtenNumber(Long value);

/// The item of a Print line and of the report: as writtenNumber, a blank in the sign's place when the value is not
/// negative, and one blank behind: " 3 ", " .5 ", "-2.25 ".
std::string printedNumber(double value);
std::string printedNumber(Long value);

/// Print lines: each number as printedNumber has it, and CR LF. They stand in `room`, which grows where it has to.
std::string_view printedLines(std::span<const double> values, std::vector<char>& room);

}  // namespace tavimor
