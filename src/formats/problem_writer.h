#pragma once

#include <string>

#include "model/fit.h"
#include "model/problem.h"
#include "runtime/file_steps.h"
#include "runtime/progress.h"

namespace tavimor {

/// Writes the problem and its fit, where it has one, as the pair `path` and `path`.dat, both files or neither (see
/// FilePair). The values of a variable that has one only are not written: such a value reads back as 0.
/// `progress` is told the share of the numbers that have been written. `newAccess` is who may see files that nothing
/// stood in the place of.
/// Errors: a RunTimeError with the path.
void writeProblem(const Problem& problem, const Fit& fit, const std::string& path, FileSteps& steps = systemFileSteps(),
                  const Progress& progress = {}, Access newAccess = Access::Usual);

}  // namespace tavimor
