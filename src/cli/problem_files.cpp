#include "cli/problem_files.h"

#include "cli/progress_bar.h"
#include "formats/problem_writer.h"

namespace tavimor {

OpenedProblem openShowingProgress(const std::string& path) {
  ProgressBar bar;
  return openProblem(path, [&](double share) { bar.show(share); });
}

void saveShowingProgress(const OpenedProblem& opened, const std::string& path) {
  ProgressBar bar;
  writeProblem(opened.problem, opened.fit, path, systemFileSteps(), [&](double share) { bar.show(share); });
}

}  // namespace tavimor
