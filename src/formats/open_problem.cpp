#include "formats/open_problem.h"

#include <utility>

#include "formats/problem_reader.h"

namespace tavimor {

OpenedProblem openProblem(const std::string& path, const Progress& progress) {
  StoredProblem stored = readProblem(path, progress);
  AllSpecFields fields;
  SetDisplayedSpecs(stored.problem, fields);
  for (Long v = 0; v < kMaxVariables; ++v) fields[v].txtExpansion = stored.centres[v];
  return {std::move(stored.problem), std::move(stored.fit), std::move(fields)};
}

}  // namespace tavimor
