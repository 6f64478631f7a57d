#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/commands.h"
#include "cli/export_command.h"
#include "cli/import_command.h"

namespace tavimor {

/// What the words of a command line ask for.
struct Arguments {
  std::string command;
  std::string problem;
  std::string output;               // empty: none
  std::vector<std::string> values;  // of the point to evaluate
  CommandOptions options;
  ImportArguments importing;
  ExportArguments exporting;
};

/// Either arguments to run with or, where there is an exit code, the text to leave the user with: help or version for
/// standard output, or the line on what is wrong with the words for standard error.
struct ParsedArguments {
  Arguments arguments;
  std::optional<ExitCode> exitCode;
  std::string message;
};

ParsedArguments parseArguments(std::vector<std::string> words);

/// The line for words that go wrong with a command: "tavimor-cli: COMPLAINT; see tavimor-cli fit --help", with an LF.
std::string usageLineOf(const std::string& command, const std::string& complaint);

}  // namespace tavimor
