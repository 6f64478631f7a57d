#pragma once

#include <string>
#include <string_view>

namespace tavimor {

/// Takes the input as a problem pair, the specification file and the values file with a form feed between them, and
/// reads it from files beside `path`. An input that is refused is fine. From one that is read,
/// saving, opening and saving again must give the same bytes twice.
/// Errors: std::logic_error where that does not hold.
void checkProblemRoundTrip(std::string_view input, const std::string& path);

}  // namespace tavimor
