#pragma once

#include <string>

#include "formats/open_problem.h"

namespace tavimor {

/// Reading and writing a problem with a progress bar where that lasts. Errors: as openProblem and writeProblem.
OpenedProblem openShowingProgress(const std::string& path);
void saveShowingProgress(const Problem& problem, const Fit& fit, const std::string& path);

}  // namespace tavimor
