#pragma once

#include <string>
#include <vector>

#include "support/problem.h"
#include "support/stored.h"

namespace tavimor::test {

inline std::string examplePath(const std::string& name) { return TAVIMOR_SOURCE_DIR "/examples/" + name; }

/// An example problem as the window would have it after Open.
struct Example {
  explicit Example(const std::string& name) {
    OpenedProblem opened = openProblem(examplePath(name));
    model = modelOf(std::move(opened.problem), std::move(opened.fit));
    fields = std::move(opened.fields);
  }

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
