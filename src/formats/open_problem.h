#pragma once

#include <string>

#include "model/fit.h"
#include "model/spec_fields.h"
#include "runtime/progress.h"

namespace tavimor {

/// A problem as the window holds it after its Open command.
struct OpenedProblem {
  Problem problem;
  Fit fit;
  AllSpecFields fields;  // they show the specifications, the centres as they stand in the file
};

/// Reads a problem pair. Errors: as readProblem.
OpenedProblem openProblem(const std::string& path, const Progress& progress = {});

}  // namespace tavimor
