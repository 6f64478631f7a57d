#include <CLI/CLI.hpp>
#include <cmath>

#include "cli/export_command.h"
#include "formats/formulas/export_formats.h"

namespace tavimor {

namespace {

std::string formatNames() {
  std::string names;
  for (const ExportFormat& format : exportFormats()) names += (names.empty() ? "" : ", ") + std::string(format.name);
  return names;
}

std::string refusalOfFormat(const std::string& name) {
  return exportFormat(name) == nullptr ? "one of " + formatNames() + " is needed" : "";
}

std::string refusalOfDistance(const std::string& text) {
  const double distance = std::strtod(text.c_str(), nullptr);
  return distance > 0.0 && std::isfinite(distance) ? "" : "a number above 0 is needed";
}

}  // namespace

void addExportOptions(CLI::App& command, ExportArguments& arguments) {
  FormulaOptions& options = arguments.options;
  command.add_option("--to", arguments.format, "the form: " + formatNames())
      ->type_name("FORM")
      ->required()
      ->check(refusalOfFormat);
  command.add_option("--name", options.name, "the function's name, by default that of the file")->type_name("NAME");
  command
      .add_option_function<double>(
          "--within", [&options](double distance) { options.within = distance; },
          "round the coefficients to few digits, staying within T of the fit")
      ->type_name("T")
      ->check(refusalOfDistance);
  command.add_flag("--precise", arguments.precise, "take the exact least-squares solution");
  command.add_option("--checks", options.checks, "the number of check points, 50 by default")
      ->type_name("N")
      ->check(CLI::Range(Long{0}, kMostChecks));
  command.add_flag_callback(
      "--nan-outside", [&options] { options.outside = Outside::NotANumber; },
      "give NaN where a variable is outside its interval");
}

}  // namespace tavimor
