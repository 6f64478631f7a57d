#pragma once

#include <string>

#include "formats/formulas/export_formats.h"
#include "formats/formulas/make_formula.h"
#include "support/files.h"
#include "support/process.h"
#include "support/temporary_folder.h"

namespace tavimor::test {

/// A command for the shell, run in a folder.
inline Outcome runIn(const TemporaryFolder& folder, const std::string& command) {
  return runToEnd("/bin/sh", {"-c", "cd '" + folder.path() + "' && " + command});
}

inline std::string exported(const std::string& format, const Problem& problem, const Fit& fit,
                            const FormulaOptions& options) {
  return exportFormat(format)->write(problem, fit, options);
}

}  // namespace tavimor::test
