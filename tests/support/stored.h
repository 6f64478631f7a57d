#pragma once

#include <string>
#include <utility>

#include "formats/open_problem.h"
#include "formats/problem_reader.h"
#include "formats/problem_writer.h"
#include "model/Dimension.h"
#include "model/capture_specs.h"

namespace tavimor::test {

/// A model with nothing but this problem and its fit.
inline Dimension modelOf(Problem problem, Fit fit) {
  Dimension model;
  static_cast<Problem&>(model) = std::move(problem);
  static_cast<Fit&>(model) = std::move(fit);
  return model;
}

/// The model of the pair `path`.
inline Dimension stored(const std::string& path) {
  StoredProblem pair = readProblem(path);
  return modelOf(std::move(pair.problem), std::move(pair.fit));
}

/// Writes problem and fit of a model as the pair `path`.
inline void store(const Dimension& model, const std::string& path, FileSteps& steps = systemFileSteps()) {
  writeProblem(model, model, path, steps);
}

/// Does what the window's Save command does: captures the fields and writes the pair.
inline void save(Dimension& model, const AllSpecFields& fields, const std::string& path,
                 FileSteps& steps = systemFileSteps()) {
  CaptureSpecs(model, fields);
  store(model, path, steps);
}

}  // namespace tavimor::test
