#include <CLI/CLI.hpp>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <optional>
#include <utility>
#include <vector>

#include "platform/crash_note.h"
#include "platform/end_request.h"
#include "platform/held_signals.h"
#include "platform/program_words.h"
#include "runtime/run_time_error.h"
#include "runtime/standard_output.h"
#include "runtime/text.h"
#include "runtime/usage_text.h"
#include "ui/controls/application.h"
#include "ui/controls/polite_end.h"
#include "ui/controls/window_places.h"
#include "ui/main_window/frmTavimor.h"
#include "ui/start_up/SubMain.h"
#include "ui/start_up/display_check.h"
#ifdef TAVIMOR_PICTURES
#include "ui/pictures/picture_file.h"
#include "ui/start_up/picture_command.h"
#endif
#include "ui/start_up/toolkit_options.h"

namespace {

using namespace tavimor;

constexpr char kProgram[] = "tavimor";
constexpr int kFailed = 1, kWrongUsage = 2;  // as of tavimor-cli

struct Arguments {
  std::string problem;
  std::string restored;  // what a window hands to a new one
#ifdef TAVIMOR_PICTURES
  std::optional<PictureRequest> picture;
#endif
  std::optional<int> exitCode;  // the command line asks for text only, or is wrong
};

// Prints a text and gives the exit code that goes with it.
int answer(const std::string& text) {
  try {
    printText(text);
    finishOutput();
    return 0;
  } catch (const Failure& failure) {
    std::fprintf(stderr, "%s: %s: %s\n", kProgram, failure.path().c_str(), failure.report().c_str());
    return kFailed;
  }
}

#ifdef TAVIMOR_PICTURES

void addPictureOptions(CLI::App& app, PictureRequest& request) {
  CLI::Option* picture = app.add_option("--picture", request.kind, "Write a picture and open no window")
                             ->option_text("section|map|residuals|degrees");
  app.add_option("-o,--output", request.output, "its file: " + pictureEndingsText())
      ->option_text("FILE")
      ->needs(picture);
  app.add_option("--x", request.x, "the variable along which it runs")->option_text("NAME")->needs(picture);
  app.add_option("--at", request.at, "where another variable is held; may be repeated")
      ->option_text("NAME=VALUE")
      ->allow_extra_args(false)
      ->needs(picture);
}

int fail(const std::string& path, const std::string& why) {
  std::fprintf(stderr, "%s: %s: %s\n", kProgram, withEscapes(path).c_str(), why.c_str());
  return kFailed;
}

int answer(const PictureRequest& request) {
  try {
    makePicture(request);
    return 0;
  } catch (const WrongRequest& wrong) {
    std::fputs(usageLine(kProgram, wrong.what(), kProgram).c_str(), stderr);
    return kWrongUsage;
  } catch (const NothingToShow& nothing) {
    return fail(request.problem, nothing.what());
  } catch (const Failure& failure) {
    return fail(failure.path().empty() ? request.problem : failure.path(), failure.report());
  } catch (const std::bad_alloc&) {
    return fail(request.problem, RunTimeError(ErrorNumber::OutOfMemory).report());
  }
}

#endif

Arguments parse(std::vector<std::string> words) {
  CLI::App app(kPurpose, kProgram);
  app.allow_windows_style_options(false);  // a word with a slash in front is a path on every system
  app.set_version_flag("--version", "tavimor " TAVIMOR_VERSION, kVersionIs);
  app.set_help_flag("-h,--help", kHelpIs);
  app.get_formatter()->label("Positionals", "Arguments");
  Arguments arguments;
  app.add_option("PROBLEM", arguments.problem, kProblemIs)->option_text(" ");
  app.add_option("--restore", arguments.restored)->group("");  // no word of a person's
#ifdef TAVIMOR_PICTURES
  PictureRequest request;
  addPictureOptions(app, request);
#endif
  try {
    std::reverse(words.begin(), words.end());  // as the parser wants them
    app.parse(words);
  } catch (const CLI::CallForVersion& version) {
    arguments.exitCode = answer(version.what() + std::string("\n"));
  } catch (const CLI::CallForHelp&) {
    arguments.exitCode = answer(app.help());
  } catch (const CLI::ParseError& error) {
    const auto unexpected = app.remaining();
    const std::string complaint = unexpected.empty() ? error.what() : unexpectedArgument(unexpected[0]);
    std::fputs(usageLine(kProgram, complaint, kProgram).c_str(), stderr);
    arguments.exitCode = kWrongUsage;
  }
#ifdef TAVIMOR_PICTURES
  request.problem = arguments.problem;
  if (!arguments.exitCode && app.count("--picture") > 0) arguments.picture = request;
#endif
  return arguments;
}

}  // namespace

int main(int argc, char** argv) {
  carryBytesOnStandardStreams();
  reportFileSizeLimitAsError();
  const Arguments arguments = parse(withoutToolkitOptions(programWords(argc, argv)));
  if (arguments.exitCode) return *arguments.exitCode;
#ifdef TAVIMOR_PICTURES
  if (arguments.picture) return answer(*arguments.picture);
#endif
  const int endRequests = watchEndRequests();
  watchCrashes();
  std::optional<DisplayCheck> displayCheck(std::in_place);
  Application application(argc, argv);
  displayCheck.reset();

  QApplication::setQuitOnLastWindowClosed(false);
  const WindowPlaces places;
  Dimension model;
  frmTavimor* window = Main(model);
  if (window == nullptr) return 0;
  application.setProblemSaver([window](const std::string& path) { window->saveCopy(path); });
  application.setFailureNotice([window] { window->keepForRestore(SessionEnd::RunTimeError); });
  unloadOnEndRequest(*window, endRequests);
  if (!arguments.problem.empty()) QTimer::singleShot(0, window, [&] { window->openFile(arguments.problem); });
  if (!arguments.restored.empty()) QTimer::singleShot(0, window, [&] { window->restoreFolder(arguments.restored); });
  return QApplication::exec();
}
