#include "formats/open_problem.h"

#include <utility>

#include "formats/problem_reader.h"

namespace tavimor {

OpenedProblem openProblem(const std::string& path) {
  StoredProblem stored = readProblem(path);
  AllSpecFields fields;
  SetDisplayedSpecs(stored.problem, fields);
  for (Long v = 0; v < kMaxVariables; ++v) fields[v].txtExpansion = stored.centres[v];
  return {std::move(stored.problem), std::move(stored.fit), std::move(fields)};
}

}  // namespace tavimor
