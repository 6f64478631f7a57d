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

/// Whether a second opinion adds what it knows to what is written.
enum class Check { Yes, No };

void addExportOptions(CLI::App& command, ExportArguments& arguments);

/// Writes the fit as a formula to the file `output`, or to standard output where that is empty. A problem without a
/// stored fit is fitted first; the whole problem as JSON goes out as it is stored. The check adds right digits and
/// standard errors, and a line on standard error where few digits are right.
ExitCode exportCommand(const std::string& problem, const std::string& output, const ExportArguments& arguments,
                       Check check);

/// Writes a table of the fit's residuals, as residualTable has it, to the file `output` or to standard output. A
/// problem without a stored fit is fitted first. The check adds leverages and studentised residuals, and a line on
/// standard error where they are not known.
ExitCode residualsCommand(const std::string& problem, const std::string& output, Check check);

}  // namespace tavimor
