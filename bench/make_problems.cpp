// Writes the measured problems as pairs into a folder:
//   make-problems FOLDER
#include <filesystem>

#include "formats/problem_writer.h"
#include "problem_sizes.h"

int main(int, char** argv) {
  std::filesystem::create_directories(argv[1]);
  for (const auto& size : tavimor::bench::kProblemSizes) {
    const tavimor::Dimension model = tavimor::bench::makeProblem(size);
    tavimor::writeProblem(model, model, (std::filesystem::path(argv[1]) / size.name).string());
  }
}
