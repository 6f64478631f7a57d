#pragma once

#include <string>
#include <string_view>

namespace tavimor {

/// What both programs say of the words on their command lines.

inline constexpr char kPurpose[] =
    "Fits the full tensor-product polynomial to a function tabulated on a grid, by least squares.";
inline constexpr char kHelpIs[] = "Print this help and exit";
inline constexpr char kVersionIs[] = "Print the version and exit";
inline constexpr char kProblemIs[] = "the specification file; its values stand in PROBLEM.dat";

/// "unexpected argument "--frob""
std::string unexpectedArgument(std::string_view word);

/// The one line that stands on standard error for wrong usage; `call` is the program with its command, if there is one:
/// "tavimor-cli: PROBLEM is required; see tavimor-cli fit --help", with an LF.
std::string usageLine(std::string_view program, std::string_view complaint, std::string_view call);

}  // namespace tavimor
