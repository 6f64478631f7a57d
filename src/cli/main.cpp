#include <cstdio>
#include <new>
#include <string>
#include <vector>

#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/export_command.h"
#include "cli/import_command.h"
#include "cli/output.h"
#include "platform/held_signals.h"
#include "platform/program_words.h"
#include "runtime/run_time_error.h"

namespace {

using namespace tavimor;

Check checkOf(const Arguments& arguments) { return arguments.options.noCheck ? Check::No : Check::Yes; }

ExitCode run(const Arguments& arguments) {
  if (arguments.command == "fit") return fitCommand(arguments.problem, arguments.output, arguments.options);
  if (arguments.command == "show") return showCommand(arguments.problem);
  if (arguments.command == "eval") return evalCommand(arguments.problem, arguments.values, arguments.options);
  if (arguments.command == "analyse") return analyseCommand(arguments.problem, arguments.options);
  if (arguments.command == "degrees") return degreesCommand(arguments.problem, arguments.options);
  if (arguments.command == "report") return reportCommand(arguments.problem);
  if (arguments.command == "import") return importCommand(arguments.problem, arguments.output, arguments.importing);
  if (arguments.command == "export")
    return exportCommand(arguments.problem, arguments.output, arguments.exporting, checkOf(arguments));
  if (arguments.command == "residuals")
    return residualsCommand(arguments.problem, arguments.output, checkOf(arguments));
  return copyCommand(arguments.problem, arguments.output);
}

ExitCode fail(const std::string& path, const std::string& reason) {
  complain(path, reason);
  return ExitCode::Error;
}

// Help, version or what is wrong with the words.
ExitCode answer(const ParsedArguments& parsed) {
  if (*parsed.exitCode != ExitCode::Success) {
    std::fputs(parsed.message.c_str(), stderr);
    return *parsed.exitCode;
  }
  try {
    printText(parsed.message);
    finishOutput();
    return ExitCode::Success;
  } catch (const Failure& failure) {
    return fail(failure.path(), failure.report());
  }
}

ExitCode runReporting(const Arguments& arguments) {
  try {
    return run(arguments);
  } catch (const UsageError& error) {
    std::fputs(usageLineOf(arguments.command, arguments.problem + ": " + error.what()).c_str(), stderr);
    return ExitCode::Usage;
  } catch (const Failure& failure) {
    return fail(failure.path().empty() ? arguments.problem : failure.path(), failure.report());
  } catch (const std::bad_alloc&) {
    return fail(arguments.problem, RunTimeError(ErrorNumber::OutOfMemory).report());
  }
}

ExitCode runWords(const std::vector<std::string>& words) {
  const ParsedArguments parsed = parseArguments(words);
  return parsed.exitCode ? answer(parsed) : runReporting(parsed.arguments);
}

}  // namespace

int main(int argc, char** argv) {
  reportFileSizeLimitAsError();
  carryBytesOnStandardStreams();
  try {
    return static_cast<int>(runWords(programWords(argc, argv)));
  } catch (const std::exception&) {  // not even memory for the words, or for a message
    std::fputs("tavimor-cli: Run-time error '7': Out of memory\n", stderr);
    return static_cast<int>(ExitCode::Error);
  }
}
