#pragma once

#include <CLI/CLI.hpp>

#include "cli/import_command.h"

namespace tavimor {

/// Adds the options of the command import.
void addImportOptions(CLI::App& command, ImportArguments& arguments);

}  // namespace tavimor
