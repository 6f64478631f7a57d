// faulty-saver PATH [NUMBERkilled|NUMBERrefused...]: saves the problem of mark 2 with these faults at the steps so
// numbered.
#include <cstdlib>

#include "runtime/run_time_error.h"
#include "support/faulty_steps.h"
#include "support/stored.h"
#include "support/stored_problems.h"

int main(int argc, char** argv) {
  using namespace tavimor;
  std::map<int, test::Fault> faults;
  for (int n = 2; n < argc; ++n) {
    const bool killed = std::string_view(argv[n]).ends_with("killed");
    faults[std::atoi(argv[n])] = killed ? test::Fault::Killed : test::Fault::Refused;
  }
  try {
    test::FaultySteps steps(faults);
    test::store(test::markedProblem(2), argv[1], steps);
    return EXIT_SUCCESS;
  } catch (const RunTimeError&) {
    return EXIT_FAILURE;
  }
}
