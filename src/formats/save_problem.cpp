#include "formats/save_problem.h"

#include "formats/problem_writer.h"
#include "model/capture_specs.h"

namespace tavimor {

void SaveProblem(Dimension& model, const AllSpecFields& fields, const std::string& path, FileSteps& steps) {
  CaptureSpecs(model, fields);
  writeProblem(model, path, steps);
}

}  // namespace tavimor
