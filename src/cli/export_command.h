#pragma once

#include <string>

#include "cli/commands.h"
#include "formats/formulas/formula.h"

namespace CLI {
class App;
}

namespace tavimor {

struct ExportArguments {
  std::string format;
  bool precise = false;  // the coefficients of the exact least-squares solution
  FormulaOptions options;
};

void addExportOptions(CLI::App& command, ExportArguments& arguments);

/// Writes the fit as a formula to the file `output`, or to standard output where that is empty. A problem without a
/// stored fit is fitted first; the whole problem as JSON goes out as it is stored.
ExitCode exportCommand(const std::string& problem, const std::string& output, const ExportArguments& arguments);

/// Writes a table of the fit's residuals, as residualTable has it, to the file `output` or to standard output. A
/// problem without a stored fit is fitted first.
ExitCode residualsCommand(const std::string& problem, const std::string& output);

}  // namespace tavimor
