#pragma once

#include <string>
#include <vector>

#include "formats/open_problem.h"
#include "model/capture_specs.h"
#include "support/problem.h"

namespace tavimor::test {

inline std::string examplePath(const std::string& name) { return TAVIMOR_SOURCE_DIR "/examples/" + name; }

/// An example problem as the window would have it after Open.
struct Example {
  explicit Example(const std::string& name) { openProblem(examplePath(name), model, fields); }

  /// Fits it about the given centres, or about those of the file.
  void fit(const std::vector<std::string>& centres = {}) {
    for (std::size_t k = 0; k < centres.size(); ++k) fields[k].txtExpansion = centres[k];
    CaptureSpecs(model, fields);
    compute(model);
  }

  Dimension model;
  AllSpecFields fields;
};

}  // namespace tavimor::test
