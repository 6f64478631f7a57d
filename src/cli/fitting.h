#pragma once

#include <optional>
#include <string>

#include "formats/open_problem.h"

namespace tavimor {

/// What the window would hold after its Open command.
struct OpenedProblem {
  explicit OpenedProblem(std::string file) : path(std::move(file)) { openProblem(path, model, fields); }

  std::string path;
  Dimension model;
  AllSpecFields fields;
};

/// Does what the window's Compute button does, with a progress bar. Returns the item that the fit leaves in the list:
/// nothing where there is a fit, and nothing where it ends without one for a reason of its own (see reasonForNoFit).
std::optional<std::string> fitShowingProgress(OpenedProblem& problem);

}  // namespace tavimor
