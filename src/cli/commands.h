#pragma once

#include <string>
#include <vector>

#include "cli/exit_code.h"
#include "cli/options.h"
#include "cli/usage_error.h"

namespace tavimor {

/// Each command prints on standard output and ends with NoFit where it printed results that are not finite. Errors:
/// RunTimeError and BadFile for files and for the run-time errors of the operations, UsageError.

/// Fits the problem and prints the results listing, one list item a line; saves the fitted problem as the pair
/// `output` unless that is empty or there is no fit. A line on standard error says where few digits of the listing are
/// right.
ExitCode fitCommand(const std::string& problem, const std::string& output, const CommandOptions& options);

/// Prints what a second opinion tells of the fit: verdict, right digits, the precise solution, statistics, remedy.
ExitCode analyseCommand(const std::string& problem, const CommandOptions& options);

/// Prints how well each combination of degrees would fit.
ExitCode degreesCommand(const std::string& problem, const CommandOptions& options);

/// Prints the specification block of each variable and the stored results, or that there are none.
ExitCode showCommand(const std::string& problem);

/// Prints the estimate at the point, or, where `values` is empty, at each point that standard input names in a line.
/// A problem without a stored fit is fitted first. With intervals, each line has the precise estimate, its standard
/// error, its confidence interval and the prediction interval instead.
ExitCode evalCommand(const std::string& problem, const std::vector<std::string>& values, const CommandOptions& options);

/// Prints the lines of the printed report.
ExitCode reportCommand(const std::string& problem);

/// Opens the problem and saves it as the pair `output`.
ExitCode copyCommand(const std::string& problem, const std::string& output);

}  // namespace tavimor
