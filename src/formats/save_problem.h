#pragma once

#include <string>

#include "model/spec_fields.h"
#include "runtime/file_steps.h"

namespace tavimor {

/// Gathers the specifications from the fields into the model and writes the problem pair `path`, `path`.dat.
/// Errors: as CaptureSpecs and writeProblem.
void SaveProblem(Dimension& model, const AllSpecFields& fields, const std::string& path,
                 FileSteps& steps = systemFileSteps());

}  // namespace tavimor
