// Reads a problem beside a process that saves it again and again.
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <set>
#include <string>

#include "runtime/run_time_error.h"
#include "support/faulty_steps.h"
#include "support/stored.h"
#include "support/stored_problems.h"

namespace {

using namespace tavimor;

void save(const std::string& path, int mark) {
  test::FaultySteps quick;
  test::store(test::markedProblem(mark), path, quick);
}

bool isWhole(const Dimension& problem) {
  const double mark = problem.AvgGiven;
  for (const Table4* table : {&problem.F, &problem.Coef})
    for (std::size_t n = 0; n < table->size(); ++n)
      if (table->data()[n] != mark) return false;
  return problem.LowerLimit[0] == mark && problem.LowerLimit[1] == mark;
}

int saverBeside(const std::string& path, int saves) {
  const int child = fork();
  if (child != 0) return child;
  try {
    for (int n = 1; n <= saves; ++n) save(path, n + 1);
    _exit(EXIT_SUCCESS);
  } catch (const RunTimeError& error) {
    std::printf("the saver: %s\n", error.report().c_str());
    std::fflush(stdout);
    _exit(EXIT_FAILURE);
  }
}

bool hasEnded(int child, int& status) { return waitpid(child, &status, WNOHANG) == child; }

// Reads until the saver has ended, and `readings` times at least.
bool allReadingsAreWhole(const std::string& path, int readings, int saver) {
  std::set<double> marks;
  int count = 0, status = -1;
  for (bool isAlone = false; !isAlone || count < readings; ++count) {
    if (!isAlone) isAlone = hasEnded(saver, status);
    const Dimension problem = test::stored(path);
    if (!isWhole(problem)) {
      std::printf("reading %d: the files are of two saves\n", count);
      return false;
    }
    marks.insert(problem.AvgGiven);
  }
  std::printf("%d readings of %zu pairs\n", count, marks.size());
  return status == 0 && marks.size() > 1;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4) {
    std::fprintf(stderr, "Usage: pair-driver PATH SAVES READINGS\n");
    return EXIT_FAILURE;
  }
  try {
    save(argv[1], 1);
    const int saver = saverBeside(argv[1], std::atoi(argv[2]));
    return allReadingsAreWhole(argv[1], std::atoi(argv[3]), saver) ? EXIT_SUCCESS : EXIT_FAILURE;
  } catch (const RunTimeError& error) {
    std::printf("the reader: %s: %s\n", error.path().c_str(), error.report().c_str());
    return EXIT_FAILURE;
  }
}
