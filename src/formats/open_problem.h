#pragma once

#include <string>

#include "model/spec_fields.h"

namespace tavimor {

/// Reads a problem pair into the model and shows its specifications in the fields, the centre texts as they stand in
/// the file. All or nothing. Errors: as readProblem.
void openProblem(const std::string& path, Dimension& model, AllSpecFields& fields);

}  // namespace tavimor
