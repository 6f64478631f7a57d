#pragma once

#include "cli/options.h"

namespace CLI {
class App;
}

namespace tavimor {

/// The options by which commands ask for a second opinion, or for another fit than that of the files. The commands
/// must have been added.
void addAnalysisOptions(CLI::App& app, CommandOptions& options);

}  // namespace tavimor
