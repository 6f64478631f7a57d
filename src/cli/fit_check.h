#pragma once

#include <optional>
#include <string>

#include "analysis/second_opinion.h"
#include "formats/open_problem.h"

namespace tavimor {

/// Fewer right digits than this are worth a line.
inline constexpr double kFewDigits = 6.0;

/// What a user of a listing should be told in a line: that the data determine no fit, that nothing can be certified, or
/// that few digits of the worst coefficient that is more than noise are right. Nothing where all is well. `path` is for
/// the command to name.
std::optional<std::string> warningOf(const SecondOpinion& opinion, const OpenedProblem& opened,
                                     const std::string& path);

}  // namespace tavimor
