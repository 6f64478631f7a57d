#pragma once

#include <string>
#include <vector>

#include "cli/commands.h"
#include "runtime/long.h"

namespace tavimor {

/// The options of the command import, as they stand on the command line.
struct ImportArguments {
  std::vector<std::string> columns;
  std::vector<Long> degrees;
  std::vector<std::string> centres;
  std::string separator;  // empty: found
  bool decimalComma = false;
  std::string header;  // "yes", "no" or empty
  std::string form;    // "list", "cross" or empty
  double tolerance = 1E-9;
  std::string duplicates = "refuse";
  std::string gaps = "refuse";

  bool operator==(const ImportArguments&) const = default;
};

/// Makes a problem of a table or of a problem's JSON text, a file or, for "-", standard input, saves it as the pair
/// `output` and prints what was taken. A table that is refused is told on standard error, a finding a line, and nothing
/// is written.
ExitCode importCommand(const std::string& table, const std::string& output, const ImportArguments& arguments);

}  // namespace tavimor
