#include "cli/problem_files.h"

#include "cli/progress_bar.h"
#include "formats/problem_writer.h"

namespace tavimor {

OpenedProblem openShowingProgress(const std::string& path) {
  ProgressBar bar;
  return openProblem(path, [&](double share) { bar.show(share); });
}

void saveShowingProgress(const Problem& problem, const Fit& fit, const std::string& path) {
  ProgressBar bar;
  writeProblem(problem, fit, path, systemFileSteps(), [&](double share) { bar.show(share); });
}

}  // namespace tavimor
