#pragma once

#include <exception>
#include <functional>

#include "engine/fit_options.h"

namespace tavimor {

/// How an analysis is to be run; the result does not depend on it.
struct AnalysisOptions {
  int threads = 0;  // 0: as many as pay
  InstructionSet instructionSet = widestInstructionSet();
  std::function<void(double)> progress;  // told the share of the work that is done, 0..1, by one thread
  std::function<bool()> cancelled;       // asked now and then, by any thread
};

/// What ends an analysis whose `cancelled` has said so.
struct AnalysisCancelled : std::exception {
  const char* what() const noexcept override { return "the analysis was cancelled"; }
};

/// Errors: AnalysisCancelled.
inline void goOn(const AnalysisOptions& options) {
  if (options.cancelled && options.cancelled()) throw AnalysisCancelled();
}

}  // namespace tavimor
