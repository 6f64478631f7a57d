#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdio>
#include <new>

#include "cli/commands.h"
#include "runtime/bad_file.h"
#include "runtime/numeral.h"
#include "runtime/run_time_error.h"

namespace {

using namespace tavimor;

struct Arguments {
  std::string problem;
  std::string output;
  std::vector<std::string> values;
};

// A negative number among the values is no option: behind "--" everything is taken as it stands.
std::vector<std::string> withNumbersProtected(std::vector<std::string> words) {
  const auto isNegativeNumber = [](const std::string& word) {
    return word.starts_with('-') && scanNumeral(word.data(), word.data() + word.size()).end != word.data();
  };
  const auto number = std::find_if(words.begin(), words.end(), isNegativeNumber);
  if (number != words.end()) words.insert(number, "--");
  return words;
}

CLI::App* addCommand(CLI::App& app, Arguments& arguments, const char* name, const char* does, const char* example) {
  CLI::App* command = app.add_subcommand(name, does);
  command->footer(std::string("Example: tavimor-cli ") + example);
  command->add_option("PROBLEM", arguments.problem, "the problem's specification file; its values stand in PROBLEM.dat")
      ->required();
  return command;
}

void addCommands(CLI::App& app, Arguments& arguments) {
  addCommand(app, arguments, "fit", "Fit the problem and print the results listing", "fit ozone -o ozone-fitted")
      ->add_option("-o,--output", arguments.output, "save the fitted problem as OUT and OUT.dat")
      ->type_name("OUT");
  addCommand(app, arguments, "show", "Print the specifications and the stored results", "show ozone");
  addCommand(app, arguments, "eval", "Print the estimate at a point, or at each point on standard input",
             "eval sound-speed 10 35 1000")
      ->add_option("VALUE", arguments.values, "one value per variable; without any, one point a line is read");
  addCommand(app, arguments, "report", "Print the report: specifications, results and data", "report ozone");
  addCommand(app, arguments, "copy", "Open the problem and save it under another name", "copy ozone ozone-2")
      ->add_option("OUT", arguments.output, "the name of the copy: OUT and OUT.dat")
      ->required();
}

ExitCode run(const std::string& command, const Arguments& arguments) {
  if (command == "fit") return fitCommand(arguments.problem, arguments.output);
  if (command == "show") return showCommand(arguments.problem);
  if (command == "eval") return evalCommand(arguments.problem, arguments.values);
  if (command == "report") return reportCommand(arguments.problem);
  return copyCommand(arguments.problem, arguments.output);
}

ExitCode fail(const std::string& path, const std::string& reason, ExitCode code = ExitCode::Error) {
  std::fprintf(stderr, "tavimor-cli: %s: %s\n", path.c_str(), reason.c_str());
  return code;
}

ExitCode runReporting(const CLI::App& command, const Arguments& arguments) {
  try {
    return run(command.get_name(), arguments);
  } catch (const UsageError& error) {
    fail(arguments.problem, error.what());
    std::fputs(command.help("tavimor-cli").c_str(), stderr);
    return ExitCode::Usage;
  } catch (const BadFile& error) {
    return fail(error.path, error.what());
  } catch (const RunTimeError& error) {
    return fail(error.path().empty() ? arguments.problem : error.path(), error.report());
  } catch (const std::bad_alloc&) {
    return fail(arguments.problem, RunTimeError(ErrorNumber::OutOfMemory).report());
  }
}

}  // namespace

int main(int argc, char** argv) {
  CLI::App app("Fits the full tensor-product polynomial to a function tabulated on a grid, by least squares.",
               "tavimor-cli");
  app.set_version_flag("--version", "tavimor-cli " TAVIMOR_VERSION);
  app.require_subcommand(1);
  Arguments arguments;
  addCommands(app, arguments);

  std::vector<std::string> words = withNumbersProtected({argv + 1, argv + argc});
  std::reverse(words.begin(), words.end());  // the order in which the parser takes them
  try {
    app.parse(words);
  } catch (const CLI::ParseError& error) {
    if (error.get_exit_code() == 0) return app.exit(error);
    std::fprintf(stderr, "tavimor-cli: %s\n%s", error.what(), app.help().c_str());
    return static_cast<int>(ExitCode::Usage);
  }
  return static_cast<int>(runReporting(*app.get_subcommands().front(), arguments));
}
