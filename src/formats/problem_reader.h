#pragma once

#include <string>

#include "model/fit.h"
#include "model/problem.h"
#include "runtime/progress.h"

namespace tavimor {

/// The text that stands in the centre field of each variable's record.
using CentreTexts = PerVariable<std::string>;

/// A problem as its files hold it. The fit is there where the files have one; without its fitted values.
struct StoredProblem {
  Problem problem;
  Fit fit;
  CentreTexts centres;
};

/// Reads the problem pair `path` and `path`.dat.
///
/// `progress` is told the share of both files together.
/// The number of variables stands in both files, and the one in the values file holds: further variables are forgotten.
/// Errors: a RunTimeError where the system refuses a file, a BadFile where its content does not fit. No table is
/// made that is larger than the rest of the file can fill.
StoredProblem readProblem(const std::string& path, const Progress& progress = {});

}  // namespace tavimor
