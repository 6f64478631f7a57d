#include "engine/save_problem.h"

#include "engine/capture_specs.h"
#include "model/problem_writer.h"

namespace tavimor {

void SaveProblem(Dimension& model, const AllSpecFields& fields, const std::string& path, FileSteps& steps) {
  CaptureSpecs(model, fields);
  writeProblem(model, path, steps);
}

}  // namespace tavimor
