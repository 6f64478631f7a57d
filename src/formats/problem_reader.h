#pragma once

#include <string>

#include "model/Dimension.h"

namespace tavimor {

/// The text that stands in the centre field of each variable's record.
using CentreTexts = PerVariable<std::string>;

/// Reads the problem pair `path` and `path`.dat into the model and returns the centre texts.
///
/// Replaces what a problem consists of: the per-variable entries, the values, F, FitDone and, where the file holds a
/// fit, Coef and the statistics. All or nothing: on any error the model stays as it was.
/// The number of variables stands in both files, and the one in the values file holds: further variables are forgotten.
/// Errors: a RunTimeError where the system refuses a file, a BadFile where its content does not fit. No table is
/// made that is larger than the rest of the file can fill.
CentreTexts readProblem(const std::string& path, Dimension& model);

}  // namespace tavimor
