#include "cli/arguments.h"

#include <CLI/CLI.hpp>
#include <algorithm>

#include "cli/analysis_arguments.h"
#include "cli/import_arguments.h"
#include "runtime/numeral.h"
#include "runtime/text.h"
#include "runtime/usage_text.h"

namespace tavimor {

namespace {

constexpr char kProgram[] = "tavimor-cli";

std::string refusalOfEmptyName(const std::string& name) { return name.empty() ? "a file name is needed" : ""; }

// A positional without the type and the word REQUIRED that would stand beside it in the help.
CLI::Option* plainly(CLI::Option* option) { return option->option_text(" "); }

void addOutput(CLI::App& command, Arguments& arguments, const char* does) {
  command.add_option("-o,--output", arguments.output, does)->type_name("OUT")->check(refusalOfEmptyName);
}

void addNewName(CLI::App& command, Arguments& arguments, const char* is) {
  plainly(command.add_option("OUT", arguments.output, is))->required()->check(refusalOfEmptyName);
}

constexpr char kWritesToFile[] = "write to the file OUT, not to standard output";

void addToFit(CLI::App& fit, Arguments& arguments) {
  addOutput(fit, arguments, "save the fitted problem as OUT and OUT.dat");
  addFitOptions(fit, arguments.options);
}

void addToEval(CLI::App& eval, Arguments& arguments) {
  plainly(eval.add_option("VALUE", arguments.values, "one value per variable; without any, one point a line is read"));
  addEvalOptions(eval, arguments.options);
}

void addToAnalyse(CLI::App& analyse, Arguments& arguments) { addAnalyseOptions(analyse, arguments.options); }

void addToDegrees(CLI::App& degrees, Arguments& arguments) { addDegreesOptions(degrees, arguments.options); }

void addToCopy(CLI::App& copy, Arguments& arguments) {
  addNewName(copy, arguments, "the copy's name: OUT and OUT.dat");
}

void addToImport(CLI::App& import, Arguments& arguments) {
  addNewName(import, arguments, "the problem's name: OUT and OUT.dat");
  addImportOptions(import, arguments.importing);
}

void addToExport(CLI::App& exporting, Arguments& arguments) {
  addExportOptions(exporting, arguments.exporting);
  addNoCheck(exporting, arguments.options, "leave right digits and standard errors out");
  addOutput(exporting, arguments, kWritesToFile);
}

void addToResiduals(CLI::App& residuals, Arguments& arguments) {
  addNoCheck(residuals, arguments.options, "leave leverages and studentised out");
  addOutput(residuals, arguments, kWritesToFile);
}

struct Command {
  const char* name;
  const char* does;
  const char* example;
  void (*addOptions)(CLI::App& command, Arguments& arguments) = nullptr;
  const char* input = "PROBLEM";
  const char* inputIs = kProblemIs;
};

constexpr Command kCommands[] = {
    {"fit", "Fit the problem and print the results listing", "fit ozone -o ozone-fitted", addToFit},
    {"show", "Print the specifications and the stored results", "show ozone-fitted"},
    {"eval", "Print the estimate at a point, or at each point on standard input", "eval sound-speed 10 35 1000",
     addToEval},
    {"analyse", "Tell how many digits of a fit are right, and give the right ones", "analyse sound-speed",
     addToAnalyse},
    {"degrees", "Tell how well each combination of degrees would fit", "degrees silicon-index --max 5,9", addToDegrees},
    {"report", "Print the report: specifications, stored results, data; it does not fit", "report ozone-fitted"},
    {"copy", "Open the problem and save it under another name", "copy ozone ozone-2", addToCopy},
    {"import", "Make a problem of a table", "import table.csv gauge --degree 2,1", addToImport, "TABLE",
     "a file of numbers in columns, or - for standard input"},
    {"export", "Write the fit as a formula in many forms, or the whole as JSON", "export ozone --to python -o ozone.py",
     addToExport},
    {"residuals", "Write a table of given and fitted values", "residuals ozone -o ozone.csv", addToResiduals},
};

std::string exampleLine(const Command& command) { return std::string("tavimor-cli ") + command.example; }

void addItsArguments(CLI::App& added, Arguments& arguments, const Command& command) {
  added.footer("Example:\n  " + exampleLine(command));
  plainly(added.add_option(command.input, arguments.problem, command.inputIs))->required()->check(refusalOfEmptyName);
  if (command.addOptions != nullptr) command.addOptions(added, arguments);
}

// A command can only be the first word that is no option. The others are named and have no arguments made: a tenth of
// the time that a small fit takes.
void addCommands(CLI::App& app, Arguments& arguments, const std::vector<std::string>& words) {
  const auto first = std::find_if(words.begin(), words.end(), [](const auto& word) { return !word.starts_with('-'); });
  std::string examples = "Examples:";
  for (const Command& command : kCommands) {
    CLI::App* added = app.add_subcommand(command.name, command.does)->group("Commands");
    if (first != words.end() && *first == command.name) addItsArguments(*added, arguments, command);
    examples += "\n  " + exampleLine(command);
  }
  app.footer(examples +
             "\nExit status: 0 done, 1 an error, 2 wrong usage, 3 no fit (a singular matrix, too "
             "high a degree, or results that are not finite).");
}

bool isNegativeNumber(const std::string& word) {
  return word.starts_with('-') && scanNumeral(word.data(), word.data() + word.size()).end != word.data();
}

bool isHelp(const std::string& word) { return word == "-h" || word == "--help"; }

// The parser would take "-.5" and "-INF" for options. Behind "--" every word is taken as it stands; it has to come
// before the first value, because the parser ends a command at a "--" within a list; options come before it.
void protectNegativeNumbers(std::vector<std::string>& words) {
  if (words.empty() || words.front() != "eval") return;
  if (std::none_of(words.begin(), words.end(), isNegativeNumber)) return;
  if (std::any_of(words.begin(), words.end(), isHelp)) return;
  std::vector<std::string> options = {words.front()}, others = {"--"};
  for (std::size_t n = 1; n < words.size(); ++n) {
    if (words[n] == "--") continue;
    const bool isOption = words[n].starts_with("--");
    (isOption ? options : others).push_back(words[n]);
    if (words[n] == "--level" && n + 1 < words.size()) options.push_back(words[++n]);
  }
  words = std::move(options);
  words.insert(words.end(), others.begin(), others.end());
}

// The parser names the option first.
std::string mismatch(const CLI::App& command, const std::string& message) {
  const std::string name = message.substr(0, message.find_first_of(": "));
  const CLI::Option* option = command.get_option_no_throw(name);
  if (option != nullptr && option->count() > 1) return name + ": given more than once";
  return name + (name == "--output" ? ": a file name is needed" : ": a value is needed");
}

std::string complaint(const CLI::App& app, const CLI::ParseError& error) {
  std::vector<std::string> unexpected = app.remaining(true);
  std::erase(unexpected, "--");
  const auto commands = app.get_subcommands();
  if (commands.empty() && unexpected.empty()) return "a command is needed";
  if (commands.empty() && !unexpected[0].starts_with('-'))
    return "no such command: \"" + withEscapes(unexpected[0]) + '"';
  if (!unexpected.empty()) return unexpectedArgument(unexpected[0]);
  if (dynamic_cast<const CLI::ArgumentMismatch*>(&error) != nullptr) return mismatch(*commands.front(), error.what());
  return error.what();
}

std::string chosenCommand(const CLI::App& app) {
  const auto commands = app.get_subcommands();
  return commands.empty() ? std::string() : commands.front()->get_name();
}

std::string helpOf(const CLI::App& app) {
  const auto commands = app.get_subcommands();
  return commands.empty() ? app.help() : commands.front()->help(kProgram);
}

}  // namespace

ParsedArguments parseArguments(std::vector<std::string> words) {
  ParsedArguments parsed;
  CLI::App app(kPurpose, kProgram);
  app.allow_windows_style_options(false);  // a word with a slash in front is a path on every system
  app.set_version_flag("--version", "tavimor-cli " TAVIMOR_VERSION, kVersionIs);
  app.set_help_flag("-h,--help", kHelpIs);
  app.get_formatter()->label("SUBCOMMAND", "COMMAND");
  app.get_formatter()->label("Positionals", "Arguments");
  app.require_subcommand(1);
  if (!words.empty() && words.front() == "analyze") words.front() = "analyse";
  addCommands(app, parsed.arguments, words);

  protectNegativeNumbers(words);
  std::reverse(words.begin(), words.end());  // the order in which the parser takes them
  try {
    app.parse(words);
    parsed.arguments.command = chosenCommand(app);
  } catch (const CLI::CallForVersion& version) {
    parsed.exitCode = ExitCode::Success;
    parsed.message = version.what() + std::string("\n");
  } catch (const CLI::CallForHelp&) {
    parsed.exitCode = ExitCode::Success;
    parsed.message = helpOf(app);
  } catch (const CLI::ParseError& error) {
    parsed.exitCode = ExitCode::Usage;
    parsed.message = usageLineOf(chosenCommand(app), complaint(app, error));
  }
  return parsed;
}

std::string usageLineOf(const std::string& command, const std::string& complaint) {
  return usageLine(kProgram, complaint, command.empty() ? kProgram : kProgram + (' ' + command));
}

}  // namespace tavimor
