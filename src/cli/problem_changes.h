#pragma once

#include <string>

#include "cli/options.h"
#include "formats/open_problem.h"

namespace tavimor {

/// Writes the degrees and centres that options give into the fields of a problem; its variables keep what is not given.
/// Errors: UsageError for what is no degree below the number of values, no number, or more than there are variables.
void applyChanges(const CommandOptions& options, OpenedProblem& opened);

/// Whether options ask for another fit than the one that the files hold.
bool asksForAnotherFit(const CommandOptions& options);

/// The numbers of a list "9,9", one for each variable at most. Errors: UsageError with the option's name.
std::vector<Long> wholeNumbers(const std::string& option, const std::string& list, const Problem& problem);

/// The level of intervals. Errors: UsageError unless between 0 and 1.
double intervalLevel(const CommandOptions& options);

}  // namespace tavimor
