#pragma once

#include "cli/options.h"

namespace CLI {
class App;
}

namespace tavimor {

/// The options by which a command asks for a second opinion, or for another fit than that of the files.
void addNoCheck(CLI::App& command, CommandOptions& options, const char* does);
void addFitOptions(CLI::App& fit, CommandOptions& options);
void addAnalyseOptions(CLI::App& analyse, CommandOptions& options);
void addDegreesOptions(CLI::App& degrees, CommandOptions& options);
void addEvalOptions(CLI::App& eval, CommandOptions& options);

}  // namespace tavimor
