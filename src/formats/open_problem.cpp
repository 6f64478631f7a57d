#include "formats/open_problem.h"

#include "formats/problem_reader.h"

namespace tavimor {

void openProblem(const std::string& path, Dimension& model, AllSpecFields& fields) {
  const CentreTexts centres = readProblem(path, model);
  for (Long v = 0; v < kMaxVariables; ++v) fields[v].txtExpansion = centres[v];
  SetDisplayedSpecs(model, fields);
}

}  // namespace tavimor
