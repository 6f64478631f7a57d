#include "cli/analysis_arguments.h"

#include <CLI/CLI.hpp>

namespace tavimor {

namespace {

std::string refusalOfNothing(const std::string& text) { return text.empty() ? "a value is needed" : ""; }

void addChanges(CLI::App& command, CommandOptions& options) {
  command.add_option("--degree", options.degrees, "degrees in the place of the problem's, \"2,1\"")
      ->type_name("D,...")
      ->check(refusalOfNothing);
  command.add_option("--centre,--center", options.centres, "centres in the place of the problem's, * for the middle")
      ->type_name("C,...")
      ->check(refusalOfNothing);
}

void addLevel(CLI::App& command, CommandOptions& options) {
  command.add_option("--level", options.level, "the level of intervals, between 0 and 1 (0.95)")->type_name("LEVEL");
}

void addReading(CLI::App& command, CommandOptions& options) {
  command.add_flag("--as-stored", options.asStored,
                   "take the data for the doubles that they are, not for the decimals");
  command.add_flag("--json", options.json, "print a JSON object");
}

}  // namespace

void addNoCheck(CLI::App& command, CommandOptions& options, const char* does) {
  command.add_flag("--no-check", options.noCheck, does);
}

void addFitOptions(CLI::App& fit, CommandOptions& options) {
  addChanges(fit, options);
  fit.add_flag("--precise", options.precise, "list and save the exact least-squares solution");
  addNoCheck(fit, options, "do not look how many digits are right");
}

void addAnalyseOptions(CLI::App& analyse, CommandOptions& options) {
  addChanges(analyse, options);
  addLevel(analyse, options);
  addReading(analyse, options);
}

void addDegreesOptions(CLI::App& degrees, CommandOptions& options) {
  degrees.add_option("--max", options.most, "the largest degrees (two more than the problem's)")
      ->type_name("D,...")
      ->check(refusalOfNothing);
  degrees.add_flag("--all", options.all, "also the combinations that another one beats in terms and in s");
  addReading(degrees, options);
}

void addEvalOptions(CLI::App& eval, CommandOptions& options) {
  eval.add_flag("--interval", options.interval, "precise estimate, standard error, confidence and prediction interval");
  addLevel(eval, options);
}

}  // namespace tavimor
