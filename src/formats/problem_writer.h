#pragma once

#include <string>

#include "model/Dimension.h"
#include "runtime/file_steps.h"

namespace tavimor {

/// Writes the problem as the pair `path` and `path`.dat, both files or neither (see FilePair). The values of a
/// variable that has one only are not written: such a value reads back as 0.
/// Errors: a RunTimeError with the path.
void writeProblem(const Dimension& model, const std::string& path, FileSteps& steps = systemFileSteps());

}  // namespace tavimor
